#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/LocalizeString.h"

namespace glossmill {

/// The texts of the `Localizable.strings` files of many languages: an empty line, then for each record with an entry in
/// the language its comments in one block, `"key" = "translation"` without a semicolon, and an empty line. Everything
/// stands as it is stored: nothing is escaped. No records give a single line feed.
class StringsFileTexts {
 public:
  /// Comments and keys are taken over at once, translations when they are asked for.
  explicit StringsFileTexts(StringArray records);

  /// Begins the text of a language.
  void start(LanguageCode language);
  /// The next piece of it, cut between records; empty at the end. Valid until the next call.
  std::string_view nextPiece();

 private:
  void appendHead(const LocalizeString& record);
  void appendRecords();

  StringArray m_records;
  std::string m_heads;                  ///< what stands before the translation, the same in all languages
  std::vector<std::size_t> m_headEnds;  ///< places in m_heads, one for each record
  LanguageCode m_language;
  std::size_t m_next = 0;  ///< the record that comes next
  bool m_isStart = true;
  std::string m_piece;
};

/// The text for a single language.
std::string stringsFileText(const StringArray& records, LanguageCode language);

}  // namespace glossmill
