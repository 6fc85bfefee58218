#include "xcode/StringsReader.h"

#include "xcode/PlistWords.h"

namespace glossmill {

namespace {

StringsText textOf(const PlistWord& word, std::string_view text) {
  const char quote = word.kind == PlistWord::Kind::Quoted ? text[word.begin - 1] : '\0';
  return {static_cast<std::uint32_t>(word.begin), static_cast<std::uint32_t>(word.end), quote, !word.hasEscapes};
}

}  // namespace

StringsReader::StringsReader(std::string_view text) : m_text(text), m_at(behindMarks(text)) {
  m_body.begin = m_at;
  if (!skipGap() || !isAt('{')) return;
  m_hasBraces = true;
  m_body.begin = ++m_at;
}

bool StringsReader::next(StringsEntry& entry) {
  if (m_mistake || m_isFinished || !skipGap()) return false;
  if (m_at == m_text.size() || (m_hasBraces && isAt('}'))) return finish();
  entry = {};
  entry.begin = static_cast<std::uint32_t>(m_at);
  return takeText(entry.key, "A key is missing here.") && skipGap() && takeRest(entry);
}

/// Nearly every gap is a blank or nothing.
bool StringsReader::skipGap() {
  while (isAt(' ')) ++m_at;
  if (m_at == m_text.size() || !mayBeInPlistGap(m_text[m_at])) return true;
  m_at = skipPlistGap(m_text, m_at);
  if (!isAt('/') || endOfPlistComment(m_text, m_at) != kNotClosed) return true;
  return fail(m_at, "A comment is not closed.");
}

bool StringsReader::takeText(StringsText& text, std::string_view sentence) {
  const PlistWord word = plistWordAt(m_text, m_at);
  if (word.kind == PlistWord::Kind::NotClosed) return fail(m_at, "A text between quotes is not closed.");
  if (!word.isText()) return fail(m_at, sentence);
  text = textOf(word, m_text);
  m_at = word.after;
  return true;
}

bool StringsReader::takeRest(StringsEntry& entry) {
  if (isAt(';')) {
    entry.form = StringsEntry::Form::KeyOnly;
    entry.value = entry.key;
    entry.end = static_cast<std::uint32_t>(++m_at);
    return true;
  }
  if (!isAt('=')) return fail(entry.keyEnd(), "“=” is missing behind a key.");
  ++m_at;
  return skipGap() && takeText(entry.value, "A text is missing behind “=”.") && takeSemicolon(entry);
}

bool StringsReader::takeSemicolon(StringsEntry& entry) {
  entry.end = static_cast<std::uint32_t>(m_at);
  if (!skipGap()) return false;
  entry.hasSemicolon = isAt(';');
  if (entry.hasSemicolon) entry.end = static_cast<std::uint32_t>(++m_at);
  const bool isLast = m_at == m_text.size() || (m_hasBraces && isAt('}'));
  return entry.hasSemicolon || isLast || fail(entry.end, "“;” is missing behind a value.");
}

/// At the closing brace, or at the end of the text.
bool StringsReader::finish() {
  m_isFinished = true;
  m_body.end = m_at;
  if (!m_hasBraces) return false;
  if (!isAt('}')) return fail(m_at, "“}” is missing at the end.");
  ++m_at;
  if (skipGap() && m_at != m_text.size()) fail(m_at, "Nothing may follow the closing brace.");
  return false;
}

bool StringsReader::fail(std::size_t at, std::string_view sentence) {
  m_mistake = {at, sentence};
  return false;
}

}  // namespace glossmill
