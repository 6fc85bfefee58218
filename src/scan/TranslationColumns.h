#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "model/LocalizeString.h"
#include "strings/StringsFileParser.h"

namespace glossmill {

/// Gathers the translations of a scan language by language, and gives them to the records in one pass over these: going
/// back to every record for every language would leave the processor's cache each time.
class TranslationColumns {
 public:
  /// `records` outlive this; they are numbered like their keys.
  explicit TranslationColumns(const StringArray& records) : m_records(records) {}

  /// A later entry of a key replaces an earlier one.
  void add(LanguageCode language, std::span<const StringsFileEntry> entries);
  /// The values must lie in the records' own arena. They leave this block by block, so that there is never twice the
  /// room taken for them.
  void moveIntoRecords();

 private:
  static constexpr std::size_t kBlock = 4096;

  /// The values of so many keys that follow on one another; null where the language has none of them.
  using Block = std::unique_ptr<std::array<StoredText, kBlock>>;

  struct Column {
    LanguageCode language;
    std::vector<Block> blocks;  ///< by key number
  };

  void moveIntoRecord(std::size_t number, LanguageCode highest);

  const StringArray& m_records;
  std::vector<Column> m_columns;
};

}  // namespace glossmill
