#include "xcode/XmlText.h"

#include <algorithm>
#include <utility>

#include "text/ByteSearch.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::pair<std::string_view, char> kNames[] = {
    {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};

/// The value of a digit, 16 or more when it is none.
unsigned digitValue(char digit) {
  if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
  const char lower = static_cast<char>(digit | 0x20);
  return lower >= 'a' && lower <= 'f' ? static_cast<unsigned>(lower - 'a' + 10) : 16;
}

/// Of "#65" or "#x41", the number sign taken away; 0 when it is no character.
char32_t numberedCharacter(std::string_view number) {
  const unsigned base = number.starts_with('x') ? 16 : 10;
  if (base == 16) number.remove_prefix(1);
  char32_t character = 0;
  for (const char digit : number) {
    if (digitValue(digit) >= base || character > 0x10FFFF) return 0;
    character = character * base + digitValue(digit);
  }
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  return character > 0x10FFFF || isSurrogate ? 0 : character;
}

char32_t namedCharacter(std::string_view name) {
  const auto* const found =
      std::find_if(std::begin(kNames), std::end(kNames), [name](const auto& known) { return known.first == name; });
  return found == std::end(kNames) ? 0 : static_cast<char32_t>(found->second);
}

XmlPiece entityAt(std::string_view text, std::size_t at) {
  constexpr std::size_t kLongest = 12;
  const std::string_view start = text.substr(at + 1, kLongest);
  const std::size_t length = start.find(';');
  if (length == std::string_view::npos) return {XmlPiece::Kind::Mistake, at, 0, at, 0};
  const std::string_view name = start.substr(0, length);
  const char32_t character = name.starts_with('#') ? numberedCharacter(name.substr(1)) : namedCharacter(name);
  const auto kind = character == 0 ? XmlPiece::Kind::Mistake : XmlPiece::Kind::Entity;
  return {kind, at, 0, at + 1 + length + 1, character};
}

/// A piece that stands between two marks.
XmlPiece pieceBetween(std::string_view text, std::size_t at, XmlPiece::Kind kind, std::string_view open,
                      std::string_view close) {
  const std::size_t begin = at + open.size();
  const std::size_t end = text.find(close, begin);
  if (end == std::string_view::npos) return {XmlPiece::Kind::Mistake, at, 0, at, 0};
  return {kind, begin, end - begin, end + close.size(), 0};
}

/// The entity to write for a character, empty when it stands for itself.
std::string_view entityFor(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '\r':
      return "&#13;";
    default:
      return {};
  }
}

bool isXmlCharacter(char32_t character) {
  if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
  return character != 0xFFFE && character != 0xFFFF;
}

}  // namespace

XmlPiece xmlPieceAt(std::string_view text, std::size_t at) {
  if (at == text.size()) return {XmlPiece::Kind::Markup, at, 0, at, 0};
  if (text[at] == '&') return entityAt(text, at);
  if (text[at] != '<') {
    const std::size_t end = findEither(text, '<', '&', at);
    return {XmlPiece::Kind::Text, at, end - at, end, 0};
  }
  const std::string_view rest = text.substr(at);
  if (rest.starts_with("<!--")) return pieceBetween(text, at, XmlPiece::Kind::Comment, "<!--", "-->");
  if (rest.starts_with("<![CDATA[")) return pieceBetween(text, at, XmlPiece::Kind::Section, "<![CDATA[", "]]>");
  return {XmlPiece::Kind::Markup, at, 0, at, 0};
}

std::string unescapeXml(std::string_view raw) {
  std::string value;
  for (std::size_t at = 0; at < raw.size();) {
    const XmlPiece piece = xmlPieceAt(raw, at);
    if (piece.end == at) break;
    at = piece.end;
    if (piece.kind == XmlPiece::Kind::Entity) {
      appendUtf8(value, piece.character);
    } else if (piece.kind != XmlPiece::Kind::Comment) {
      value += raw.substr(piece.begin, piece.length);
    }
  }
  return value;
}

std::optional<std::string> escapeXml(std::string_view value) {
  std::string text;
  text.reserve(value.size());
  while (!value.empty()) {
    const std::string_view before = value;
    if (!isXmlCharacter(takeCodePoint(value))) return std::nullopt;
    const std::string_view entity = entityFor(before.front());
    text += entity.empty() ? before.substr(0, before.size() - value.size()) : entity;
  }
  return text;
}

}  // namespace glossmill
