#include "formats/XmlCheck.h"

#include <algorithm>
#include <optional>

#include "formats/XmlCharacters.h"
#include "text/ByteSearch.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostDepth = 100;
constexpr std::size_t kMostAttributes = 100;
constexpr std::size_t kMostElements = 10'000'000;
constexpr std::size_t kShortName = 3;

class Checker {
 public:
  Checker(std::string_view text, const std::vector<std::string_view>& names) : m_text(text), m_names(names) {}

  Result<XmlSurvey> check() {
    const std::size_t control = firstLackedByXml(m_text);
    if (control != m_text.size()) fail(control, "It holds a character that XML does not allow.");
    while (!m_error && m_at < m_text.size()) {
      takeText();
      if (!m_error && m_at < m_text.size()) takeMarkup();
    }
    if (!m_error && !m_open.empty()) fail(m_text.size(), "An element is not closed.");
    if (!m_error && m_elements == 0) fail(0, "It holds no element: this is no XML.");
    if (m_error) return *m_error;
    return std::move(m_survey);
  }

 private:
  void takeText() {
    const std::size_t end = findByte(m_text, '<', m_at);
    const std::string_view piece = m_text.substr(m_at, end - m_at);
    if (m_open.empty() && piece.find_first_not_of(kXmlWhite) != piece.npos) {
      return fail(m_at, "Text stands outside the element that holds all others.");
    }
    checkReferences(m_at, end);
    m_at = end;
  }

  void takeMarkup() {
    const std::string_view rest = m_text.substr(m_at);
    if (rest.starts_with("<!--")) return skip(4, "-->", "A comment is not closed.");
    if (rest.starts_with("<![CDATA[")) return m_open.empty() ? failHere() : skip(9, "]]>", "CDATA is not closed.");
    if (rest.starts_with("<?")) return takeInstruction();
    if (rest.starts_with("<!DOCTYPE")) return takeDocumentType();
    if (rest.starts_with("</")) return takeEnd();
    takeStart();
  }

  void skip(std::size_t begin, std::string_view end, std::string_view sentence) {
    const std::size_t found = m_text.find(end, m_at + begin);
    if (found == m_text.npos) return fail(m_at, sentence);
    m_at = found + end.size();
  }

  void takeInstruction() {
    const std::size_t begin = m_at;
    skip(2, "?>", "An instruction is not closed.");
    if (m_error || begin != 0) return;
    const std::string_view declaration = m_text.substr(0, m_at);
    const std::size_t name = declaration.find("encoding");
    if (!declaration.starts_with("<?xml") || name == declaration.npos) return;
    const std::size_t quote = declaration.find_first_of("\"'", name);
    if (quote == declaration.npos) return failHere();
    const std::string_view value = declaration.substr(quote + 1);
    if (!isUnicode(value.substr(0, value.find(declaration[quote])))) {
      fail(0, "It is not in UTF-8 or UTF-16, it says; save it in UTF-8.");
    }
  }

  static bool isUnicode(std::string_view encoding) {
    std::string name(encoding);
    for (char& byte : name) byte = byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
    return name.starts_with("UTF-") || name == "US-ASCII" || name == "ASCII";
  }

  void takeDocumentType() {
    const std::size_t end = m_text.find_first_of("[>", m_at);
    if (end == m_text.npos || m_elements > 0) return failHere();
    if (m_text[end] == '[') return fail(m_at, "It has entities of its own, which are not read.");
    m_at = end + 1;
  }

  void takeEnd() {
    const std::size_t end = findByte(m_text, '>', m_at);
    if (end == m_text.size()) return failHere();
    std::string_view name = m_text.substr(m_at + 2, end - m_at - 2);
    while (!name.empty() && isXmlWhite(name.back())) name.remove_suffix(1);
    if (m_open.empty() || m_open.back() != name)
      return fail(m_at, "A closing tag does not fit the one that it closes.");
    m_open.pop_back();
    m_at = end + 1;
  }

  void takeStart() {
    const std::size_t begin = m_at++;
    const std::string_view name = takeName();
    if (name.empty()) return fail(begin, "“<” begins no tag.");
    if (m_open.empty() && m_elements > 0) return fail(begin, "There is more than one element at the outside.");
    if (++m_elements > kMostElements) return fail(begin, "It has too many elements.");
    note(name, begin);
    m_attributes.clear();
    while (takeAttribute()) continue;
    if (m_error) return;
    const bool isEmpty = m_at < m_text.size() && m_text[m_at] == '/';
    if (isEmpty) ++m_at;
    if (m_at == m_text.size() || m_text[m_at] != '>') return fail(begin, "A tag is not closed.");
    ++m_at;
    if (isEmpty) return;
    m_open.push_back(name);
    if (m_open.size() > kMostDepth) fail(begin, "Its elements lie too deep in one another.");
  }

  void note(std::string_view name, std::size_t begin) {
    const std::string_view local = localName(name);
    m_survey.hasShortNames = m_survey.hasShortNames || local.size() <= kShortName;
    if (std::ranges::find(m_names, local) != m_names.end()) m_survey.lines.add(begin + 1, lineOf(begin));
  }

  std::string_view takeName() {
    const std::size_t begin = m_at;
    if (m_at < m_text.size() && startsXmlName(m_text[m_at])) {
      while (m_at < m_text.size() && isInXmlName(m_text[m_at])) ++m_at;
    }
    return m_text.substr(begin, m_at - begin);
  }

  bool skipWhite() {
    const std::size_t begin = m_at;
    while (m_at < m_text.size() && isXmlWhite(m_text[m_at])) ++m_at;
    return m_at > begin;
  }

  /// False at the end of the tag, and after a mistake.
  bool takeAttribute() {
    const bool isApart = skipWhite();
    const std::size_t begin = m_at;
    const std::string_view name = takeName();
    if (name.empty()) return false;
    if (!isApart || m_attributes.size() == kMostAttributes ||
        std::ranges::find(m_attributes, name) != m_attributes.end()) {
      fail(begin, "The attributes of a tag are not as they should be.");
      return false;
    }
    m_attributes.push_back(name);
    skipWhite();
    const bool hasValue = m_at < m_text.size() && m_text[m_at++] == '=';
    skipWhite();
    if (!hasValue || m_at == m_text.size() || (m_text[m_at] != '"' && m_text[m_at] != '\'')) {
      fail(begin, "An attribute has no value between quotes.");
      return false;
    }
    const std::size_t end = findByte(m_text, m_text[m_at], m_at + 1);
    if (end == m_text.size() || findByte(m_text.substr(0, end), '<', m_at + 1) != end) {
      fail(begin, "The quotes of an attribute are not closed.");
      return false;
    }
    checkReferences(m_at + 1, end);
    m_at = end + 1;
    return !m_error;
  }

  void checkReferences(std::size_t begin, std::size_t end) {
    const std::string_view piece = m_text.substr(0, end);
    for (std::size_t at = findByte(piece, '&', begin); at < end; at = findByte(piece, '&', at + 1)) {
      const std::size_t close = piece.find(';', at);
      const std::string_view name =
          close == piece.npos ? std::string_view() : piece.substr(at + 1, std::min<std::size_t>(close - at - 1, 12));
      const bool isKnown = name == "amp" || name == "lt" || name == "gt" || name == "quot" || name == "apos";
      if (!isKnown && !(name.starts_with('#') && isXmlCharacterNumber(name))) {
        return fail(at, "“&” begins no character that XML knows.");
      }
    }
  }

  /// Places come in their order.
  std::uint32_t lineOf(std::size_t at) {
    const std::string_view passed = m_text.substr(m_counted, at - m_counted);
    m_line += static_cast<std::uint32_t>(std::ranges::count(passed, '\n'));
    m_counted = at;
    return m_line;
  }

  void failHere() { fail(m_at, "It is not well-formed XML."); }

  void fail(std::size_t at, std::string_view sentence) {
    if (m_error) return;
    const auto line = 1 + std::ranges::count(m_text.substr(0, at), '\n');
    m_error = Error{"line " + std::to_string(line) + ": " + std::string(sentence)};
  }

  std::string_view m_text;
  const std::vector<std::string_view>& m_names;
  std::size_t m_at = 0;
  std::size_t m_counted = 0;
  std::uint32_t m_line = 1;
  std::size_t m_elements = 0;
  std::vector<std::string_view> m_open;
  std::vector<std::string_view> m_attributes;  ///< of the tag
  XmlSurvey m_survey;
  std::optional<Error> m_error;
};

}  // namespace

std::uint32_t ElementLines::at(std::size_t nameAt) {
  if (m_next == m_lines.size() || m_lines[m_next].nameAt != nameAt) {
    const auto found = std::ranges::lower_bound(m_lines, nameAt, {}, &Place::nameAt);
    m_next = static_cast<std::size_t>(found - m_lines.begin());
  }
  const bool isThere = m_next < m_lines.size() && m_lines[m_next].nameAt == nameAt;
  return isThere ? m_lines[m_next++].line : 0;
}

std::string_view localName(std::string_view name) {
  const std::size_t colon = name.rfind(':');
  return colon == name.npos ? name : name.substr(colon + 1);
}

Result<XmlSurvey> checkXml(std::string_view text, const std::vector<std::string_view>& names) {
  return Checker(text, names).check();
}

}  // namespace glossmill
