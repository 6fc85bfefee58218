#include "cli/JsonWriter.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "text/ByteSearch.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostHeld = 1 << 20;
constexpr std::size_t kLongText = 1 << 16;
constexpr char kDelete = 0x7F;
constexpr char kLeadOfHighControls = '\xC2';

/// The control character of U+007F to U+009F at this place, which a terminal may take for a command; 0 for any other.
unsigned highControl(std::string_view text, std::size_t at) {
  if (text[at] == kDelete) return 0x7F;
  if (text[at] != kLeadOfHighControls || at + 1 == text.size()) return 0;
  const auto next = static_cast<unsigned char>(text[at + 1]);
  return next < 0xA0 ? next : 0;
}

/// Adds JSON; of valid UTF-8, outside of strings there are no such characters.
void appendEscaped(std::string& out, std::string_view json) {
  std::size_t done = 0;
  for (std::size_t at = findEither(json, kDelete, kLeadOfHighControls, 0); at < json.size();
       at = findEither(json, kDelete, kLeadOfHighControls, at + 1)) {
    const unsigned control = highControl(json, at);
    if (control == 0) continue;
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", control & 0xFFU);
    out.append(json.substr(done, at - done)).append(escape);
    done = at + (control == 0x7F ? 1 : 2);
  }
  out.append(json.substr(done));
}

std::string dumped(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool holdsLongText(const Json& value) {
  if (value.is_string()) return value.get_ref<const std::string&>().size() > kLongText;
  return value.is_structured() && std::any_of(value.begin(), value.end(), holdsLongText);
}

/// Not longer than a long text, and cut between characters.
std::size_t pieceLength(std::string_view text) {
  constexpr std::size_t kLongestCharacter = 4;
  if (text.size() <= kLongText) return text.size();
  std::size_t length = kLongText;
  const auto isInside = [text](std::size_t at) { return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80; };
  while (length > kLongText - kLongestCharacter && isInside(length)) --length;
  return length;
}

}  // namespace

std::string compactJson(const Json& value) {
  std::string text;
  appendEscaped(text, dumped(value));
  return text;
}

std::string prettyJson(const Json& value) {
  std::string text;
  appendEscaped(text, value.dump(2, ' ', false, Json::error_handler_t::replace));
  return text + "\n";
}

void JsonWriter::member(std::string_view memberName, const Json& memberValue) {
  name(memberName);
  value(memberValue);
}

void JsonWriter::end() {
  m_text += m_isFirst ? "{}\n" : "\n}\n";
  m_sink(m_text);
  m_text.clear();
}

void JsonWriter::name(std::string_view memberName) {
  m_text += m_isFirst ? "{\n  " : ",\n  ";
  m_isFirst = false;
  value(memberName);
  m_text += ": ";
}

void JsonWriter::value(const Json& value) {
  if (value.is_string()) return this->value(std::string_view(value.get_ref<const std::string&>()));
  if (!holdsLongText(value)) {
    appendEscaped(m_text, dumped(value));
    return handOver();
  }
  const bool isObject = value.is_object();
  m_text += isObject ? '{' : '[';
  std::string_view separator;
  for (const auto& item : value.items()) {
    m_text += std::exchange(separator, ",");
    if (isObject) appendEscaped(m_text, dumped(item.key()) + ":");
    this->value(item.value());
  }
  m_text += isObject ? '}' : ']';
}

void JsonWriter::value(std::string_view text) {
  if (text.size() > kLongText) return longText(text);
  appendEscaped(m_text, dumped(text));
  handOver();
}

/// Piece by piece, so that a very long text does not lie in memory in several forms.
void JsonWriter::longText(std::string_view text) {
  m_text += '"';
  while (!text.empty()) {
    const std::string_view piece = text.substr(0, pieceLength(text));
    const std::string quoted = dumped(piece);
    appendEscaped(m_text, std::string_view(quoted).substr(1, quoted.size() - 2));
    handOver();
    text.remove_prefix(piece.size());
  }
  m_text += '"';
}

void JsonWriter::handOver() {
  if (m_text.size() < kMostHeld) return;
  m_sink(m_text);
  m_text.clear();
}

}  // namespace glossmill
