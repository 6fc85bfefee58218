#include "edit/StringsFileWriter.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace glossmill {

namespace {
constexpr std::size_t kPieceBytes = 64 * 1024;  // stays in the processor's cache until it is written
}

StringsFileTexts::StringsFileTexts(StringArray records) : m_records(std::move(records)) {
  m_headEnds.reserve(m_records.size());
  for (const std::shared_ptr<LocalizeString>& record : m_records) appendHead(*record);
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
  m_language = language;
  m_next = 0;
  m_isStart = true;
}

std::string_view StringsFileTexts::nextPiece() {
  m_piece = m_isStart ? "\n" : "";
  m_isStart = false;
  while (m_next < m_records.size() && m_piece.size() < kPieceBytes) appendRecords();
  return m_piece;
}

/// The records lie all over the memory; looking for the translations of some and nothing else lets the processor fetch
/// many of them at a time.
void StringsFileTexts::appendRecords() {
  std::array<std::optional<std::string_view>, 64> translations;
  const std::size_t first = m_next;
  const std::size_t count = std::min(translations.size(), m_records.size() - first);
  for (std::size_t i = 0; i < count; ++i) translations[i] = m_records[first + i]->languagesDict().find(m_language);
  for (std::size_t i = 0; i < count; ++i) {
    if (!translations[i]) continue;
    const std::size_t start = first + i == 0 ? 0 : m_headEnds[first + i - 1];
    m_piece.append(m_heads, start, m_headEnds[first + i] - start);
    m_piece += *translations[i];
    m_piece += "\"\n\n";
  }
  m_next += count;
}

std::string stringsFileText(const StringArray& records, LanguageCode language) {
  StringsFileTexts texts(records);
  texts.start(language);
  std::string text;
  for (std::string_view piece = texts.nextPiece(); !piece.empty(); piece = texts.nextPiece()) text += piece;
  return text;
}

}  // namespace glossmill
