#include "strings/StringsFileWriter.h"

#include <algorithm>
#include <utility>

namespace glossmill {

namespace {
constexpr std::size_t kPieceBytes = 64 * 1024;  // stays in the processor's cache until it is written
}

/// The records lie all over the memory, so each is visited once, and not once for every language.
StringsFileTexts::StringsFileTexts(StringArray records, const std::vector<LanguageCode>& languages)
    : m_records(std::move(records)) {
  for (const LanguageCode language : languages) {
    m_columns.push_back({language, {}});
    m_columns.back().translations.reserve(m_records.size());
  }
  m_headEnds.reserve(m_records.size());
  for (const std::shared_ptr<LocalizeString>& record : m_records) {
    appendHead(*record);
    for (Column& column : m_columns) column.translations.push_back(record->languagesDict().stored(column.language));
  }
}

void StringsFileTexts::appendHead(const LocalizeString& record) {
  m_heads += "/* ";
  m_heads += record.comment();
  m_heads += " */\n\"";
  m_heads += record.name();
  m_heads += "\" = \"";
  m_headEnds.push_back(m_heads.size());
}

void StringsFileTexts::start(LanguageCode language) {
  m_column = &columnOf(language);
  m_next = 0;
  m_isStart = true;
}

const StringsFileTexts::Column& StringsFileTexts::columnOf(LanguageCode language) const {
  return *std::find_if(m_columns.begin(), m_columns.end(),
                       [language](const Column& column) { return column.language == language; });
}

std::size_t StringsFileTexts::entryCount(LanguageCode language) const {
  const std::vector<StoredText>& translations = columnOf(language).translations;
  return static_cast<std::size_t>(std::count_if(translations.begin(), translations.end(),
                                                [](const StoredText& text) { return static_cast<bool>(text); }));
}

std::string_view StringsFileTexts::nextPiece() {
  m_piece = m_isStart ? "\n" : "";
  m_isStart = false;
  while (m_next < m_headEnds.size() && m_piece.size() < kPieceBytes) appendRecord(m_next++);
  return m_piece;
}

void StringsFileTexts::appendRecord(std::size_t place) {
  const StoredText translation = m_column->translations[place];
  if (!translation) return;
  const std::size_t start = place == 0 ? 0 : m_headEnds[place - 1];
  m_piece.append(m_heads, start, m_headEnds[place] - start);
  m_piece += translation.view();
  m_piece += "\"\n\n";
}

std::string stringsFileText(const StringArray& records, LanguageCode language) {
  StringsFileTexts texts(records, {language});
  texts.start(language);
  std::string text;
  for (std::string_view piece = texts.nextPiece(); !piece.empty(); piece = texts.nextPiece()) text += piece;
  return text;
}

}  // namespace glossmill
