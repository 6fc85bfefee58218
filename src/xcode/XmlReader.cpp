#include "xcode/XmlReader.h"

#include <algorithm>

#include "text/ByteSearch.h"
#include "xcode/PlistWords.h"
#include "xcode/XmlText.h"

namespace glossmill {

namespace {

constexpr std::string_view kCommentStart = "<!--";
constexpr std::string_view kCommentEnd = "-->";

bool isXmlSpace(char character) {
  return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool isNameEnd(char character) {
  return isXmlSpace(character) || character == '>' || character == '/';
}

/// Behind the first `mark` at or after `at`; nothing when there is none.
std::optional<std::size_t> behindNext(std::string_view text, std::string_view mark, std::size_t at) {
  const std::size_t found = text.find(mark, at);
  return found == std::string_view::npos ? std::nullopt : std::optional(found + mark.size());
}

/// Behind the ">" that ends what begins at `at`: those between quotes do not count. Nothing when there is none.
std::optional<std::size_t> endOfMarkup(std::string_view text, std::size_t at) {
  while (at < text.size() && text[at] != '>') {
    const bool isQuote = text[at] == '"' || text[at] == '\'';
    at = isQuote ? findByte(text, text[at], at + 1) + 1 : at + 1;
  }
  return at < text.size() ? std::optional(at + 1) : std::nullopt;
}

}  // namespace

bool isXml(std::string_view text) {
  const std::string_view rest = text.substr(skipPlistSpace(text, behindMarks(text)));
  return rest.starts_with("<?") || rest.starts_with("<!") || rest.starts_with("<plist");
}

std::string_view declaredXmlEncoding(std::string_view text) {
  constexpr std::string_view kAttribute = "encoding";
  const std::string_view line = text.substr(0, text.find("?>"));
  const std::size_t attribute = line.starts_with("<?xml") ? line.find(kAttribute) : std::string_view::npos;
  if (attribute == std::string_view::npos) return {};
  const std::size_t open = line.find_first_of("\"'", attribute + kAttribute.size());
  if (open == std::string_view::npos) return {};
  const std::size_t close = line.find(line[open], open + 1);
  return close == std::string_view::npos ? std::string_view() : line.substr(open + 1, close - open - 1);
}

std::size_t XmlReader::endOfComment(std::string_view text, std::size_t at) {
  if (!text.substr(at).starts_with(kCommentStart)) return at;
  return behindNext(text, kCommentEnd, at + kCommentStart.size()).value_or(at);
}

XmlTag XmlReader::nextTag() {
  if (m_mistake || !skipToTag()) return {XmlTag::Kind::Mistake, {}, m_at, m_at};
  return m_at == m_text.size() ? XmlTag{XmlTag::Kind::End, {}, m_at, m_at} : takeTag();
}

bool XmlReader::skipToTag() {
  while (true) {
    while (m_at < m_text.size() && isXmlSpace(m_text[m_at])) ++m_at;
    if (m_at == m_text.size()) return true;
    if (m_text[m_at] != '<') return fail(m_at, "A tag is missing here.").kind != XmlTag::Kind::Mistake;
    const std::string_view rest = m_text.substr(m_at);
    if (!rest.starts_with("<!") && !rest.starts_with("<?")) return true;
    const std::optional<std::size_t> end = endOfOther();
    if (!end) return fail(m_at, "A comment or an instruction is not closed.").kind != XmlTag::Kind::Mistake;
    m_at = *end;
  }
}

/// Behind the comment, instruction or document type that begins here.
std::optional<std::size_t> XmlReader::endOfOther() const {
  const std::string_view rest = m_text.substr(m_at);
  if (rest.starts_with(kCommentStart)) return behindNext(m_text, kCommentEnd, m_at + kCommentStart.size());
  if (rest.starts_with("<?")) return behindNext(m_text, "?>", m_at);
  return endOfMarkup(m_text, m_at);
}

XmlTag XmlReader::takeTag() {
  const std::size_t begin = m_at;
  const bool isClosing = m_text.substr(begin).starts_with("</");
  const std::size_t name = begin + (isClosing ? 2 : 1);
  const std::optional<std::size_t> end = endOfMarkup(m_text, name);
  if (!end) return fail(begin, "A tag is not closed.");
  std::size_t nameEnd = name;
  while (!isNameEnd(m_text[nameEnd])) ++nameEnd;
  if (nameEnd == name) return fail(begin, "A tag has no name.");
  const bool isEmpty = m_text[*end - 2] == '/';
  m_at = *end;
  const XmlTag::Kind kind = isClosing ? XmlTag::Kind::Close : isEmpty ? XmlTag::Kind::Empty : XmlTag::Kind::Open;
  return {kind, m_text.substr(name, nameEnd - name), begin, *end};
}

std::optional<XmlContent> XmlReader::content(std::string_view name) {
  XmlContent content{m_at, m_at, m_at, true};
  while (true) {
    const XmlPiece piece = xmlPieceAt(m_text, content.end);
    if (piece.kind == XmlPiece::Kind::Markup) break;
    if (piece.kind == XmlPiece::Kind::Mistake) {
      fail(content.end, "This is no text that XML knows.");
      return std::nullopt;
    }
    content.isPlain = content.isPlain && piece.kind == XmlPiece::Kind::Text;
    content.end = piece.end;
  }
  m_at = content.end;
  if (m_at == m_text.size()) {
    fail(m_at, "The file ends before its list does.");
    return std::nullopt;
  }
  const XmlTag tag = takeTag();
  if (tag.kind != XmlTag::Kind::Close || tag.name != name) {
    if (!m_mistake) fail(content.end, "A text is followed by the wrong tag.");
    return std::nullopt;
  }
  content.after = tag.end;
  return content;
}

XmlTag XmlReader::fail(std::size_t at, std::string_view sentence) {
  m_mistake = {at, sentence};
  m_at = at;
  return {XmlTag::Kind::Mistake, {}, at, at};
}

}  // namespace glossmill
