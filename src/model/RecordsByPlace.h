#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "model/LocalizeString.h"

namespace glossmill {

/// The id of the table that the record belongs to; empty where a project has one table only.
std::string_view tableIdOf(const LocalizeString& record);

/// Finds records by table and key. Holds them.
class RecordsByPlace {
 public:
  void add(const StringArray& records);
  /// Null when there is none; the first one added when there are several.
  std::shared_ptr<LocalizeString> find(std::string_view table, std::string_view key) const;

 private:
  std::unordered_map<std::string, std::shared_ptr<LocalizeString>> m_records;
};

}  // namespace glossmill
