#include "xcode/OldPropertyListParser.h"

#include "text/ByteSearch.h"
#include "xcode/PlistEscapes.h"

namespace glossmill {

namespace {

bool isHexDigitOrSpace(char character) {
  const char lower = static_cast<char>(character | 0x20);
  return (character >= '0' && character <= '9') || (lower >= 'a' && lower <= 'f') || character == ' ' ||
         (character >= '\t' && character <= '\r');
}

}  // namespace

std::optional<PlistMistake> OldPropertyListParser::parse() {
  m_at = behindMarks(m_text);
  while (skipGap() && !(m_builder.isComplete() && m_at == m_text.size())) {
    if (!step()) break;
  }
  return m_mistake;
}

bool OldPropertyListParser::skipGap() {
  m_at = skipPlistGap(m_text, m_at);
  if (endOfPlistComment(m_text, m_at) != kNotClosed) return true;
  return fail(m_at, "A comment is not closed.");
}

bool OldPropertyListParser::step() {
  if (m_builder.isComplete()) return fail(m_at, "Nothing may follow the end of the list.");
  if (m_at == m_text.size()) return fail(m_at, "The file ends before its list does.");
  switch (m_builder.openKind()) {
    case Kind::Dictionary:
      return takeEntryOrEnd();
    case Kind::Array:
      return takeItemOrEnd();
    default:
      return takeValue();
  }
}

bool OldPropertyListParser::takeEntryOrEnd() {
  if (isAt('}')) return close();
  const PlistWord key = takeWord();
  if (!key.isText()) return failWord(key, "A key or “}” is missing here.");
  addText(key);
  if (!skipGap()) return false;
  if (isAt(';')) {
    addText(key);
    return endValue();
  }
  if (!isAt('=')) return fail(key.after, "“=” is missing behind a key.");
  ++m_at;
  return skipGap() && takeValue();
}

bool OldPropertyListParser::takeItemOrEnd() {
  return isAt(')') ? close() : takeValue();
}

bool OldPropertyListParser::takeValue() {
  if (isAt('{')) return open(Kind::Dictionary);
  if (isAt('(')) return open(Kind::Array);
  if (isAt('<')) return takeData();
  const PlistWord word = takeWord();
  if (!word.isText()) return failWord(word, "A value is missing here.");
  addText(word);
  return endValue();
}

bool OldPropertyListParser::takeData() {
  const std::size_t begin = m_at + 1;
  std::size_t end = begin;
  while (end < m_text.size() && isHexDigitOrSpace(m_text[end])) ++end;
  if (end == m_text.size() || m_text[end] != '>') return fail(m_at, "Data is not closed, or holds more than digits.");
  m_builder.add(Kind::Data, m_text.substr(begin, end - begin));
  m_at = end + 1;
  return endValue();
}

bool OldPropertyListParser::open(Kind kind) {
  if (m_builder.isFull()) return fail(m_at, "The list is nested too deeply.");
  m_builder.open(kind);
  ++m_at;
  return true;
}

bool OldPropertyListParser::close() {
  m_builder.close();
  ++m_at;
  return endValue();
}

/// Takes what has to stand behind a value.
bool OldPropertyListParser::endValue() {
  m_valueEnd = m_at;
  switch (m_builder.openKind()) {
    case Kind::Dictionary:
      return takeSeparator(';', '}', "“;” is missing behind a value.");
    case Kind::Array:
      return takeSeparator(',', ')', "“,” is missing behind a value.");
    default:
      return true;
  }
}

/// The last value needs no separator.
bool OldPropertyListParser::takeSeparator(char separator, char closing, std::string_view sentence) {
  if (!skipGap()) return false;
  if (isAt(closing) || m_at == m_text.size()) return true;
  if (!isAt(separator)) return fail(m_valueEnd, sentence);
  ++m_at;
  return true;
}

bool OldPropertyListParser::fail(std::size_t at, std::string_view sentence) {
  m_mistake = {at, sentence};
  return false;
}

/// At the place where no word was taken.
bool OldPropertyListParser::failWord(const PlistWord& word, std::string_view sentence) {
  return fail(m_at, word.kind == PlistWord::Kind::NotClosed ? "A text between quotes is not closed." : sentence);
}

PlistWord OldPropertyListParser::takeWord() {
  const PlistWord word = plistWordAt(m_text, m_at);
  if (word.isText()) m_at = word.after;
  return word;
}

void OldPropertyListParser::addText(const PlistWord& word) {
  if (word.hasEscapes) {
    m_builder.addUnescaped(unescapePlist(word.in(m_text)));
  } else {
    m_builder.add(Kind::Text, word.in(m_text));
  }
}

}  // namespace glossmill
