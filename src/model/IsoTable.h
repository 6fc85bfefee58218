#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/Result.h"

namespace glossmill {

/// The ISO 639 table: two- and three-letter language codes to English names.
class IsoTable {
 public:
  /// Reads "three;two;Name" records, each ended by a carriage return. Whatever does not have the right form is left
  /// out (rule 47); a later record with the same code replaces the earlier name. Bytes that are not 7-bit ASCII are an
  /// error.
  static Result<IsoTable> fromCsv(std::string_view bytes);

  std::optional<std::string> nameOf(std::string_view code) const;
  /// Every code with exactly this English name, longer codes first, so that the shortest comes last.
  std::vector<std::string> codesOf(std::string_view name) const;
  /// Code to name, sorted by code.
  const std::map<std::string, std::string, std::less<>>& all() const { return m_names; }

 private:
  void addRecord(std::string_view record);

  std::map<std::string, std::string, std::less<>> m_names;
};

}  // namespace glossmill
