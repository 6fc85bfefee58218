#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/LanguageTexts.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// The texts of the `Localizable.strings` files of many languages: an empty line, then for each record with an entry in
/// the language its comments in one block, `"key" = "translation"` without a semicolon, and an empty line. Everything
/// stands as it is stored: nothing is escaped (rule 37). No records give a single line feed.
class StringsFileTexts : public LanguageTexts {
 public:
  /// Takes over what the texts of these languages need; the translations themselves stay where they are.
  StringsFileTexts(StringArray records, const std::vector<LanguageCode>& languages);

  void start(LanguageCode language) override;
  std::string_view nextPiece() override;
  std::size_t entryCount(LanguageCode language) const override;

 private:
  /// All translations into one language, in the order of the records.
  struct Column {
    LanguageCode language;
    std::vector<StoredText> translations;
  };

  const Column& columnOf(LanguageCode language) const;
  void appendHead(const LocalizeString& record);
  void appendRecord(std::size_t place);

  StringArray m_records;                ///< kept alive: a project may be closed behind a question that saving asks
  std::string m_heads;                  ///< what stands before the translation, the same in all languages
  std::vector<std::size_t> m_headEnds;  ///< places in m_heads, one for each record
  std::vector<Column> m_columns;
  const Column* m_column = nullptr;
  std::size_t m_next = 0;  ///< the record that comes next
  bool m_isStart = true;
  std::string m_piece;
};

/// The text for a single language.
std::string stringsFileText(const StringArray& records, LanguageCode language);

}  // namespace glossmill
