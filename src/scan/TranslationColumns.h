#pragma once

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
  /// The values must lie in the records' own arena.
  void moveIntoRecords();

 private:
  struct Column {
    LanguageCode language;
    std::vector<StoredText> values;  ///< by key number
  };

  const StringArray& m_records;
  std::vector<Column> m_columns;
};

}  // namespace glossmill
