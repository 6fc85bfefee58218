#include "cli/JsonWriter.h"

#include <cstdio>

#include "text/ByteSearch.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostHeld = 1 << 20;
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

}  // namespace

void JsonWriter::member(std::string_view memberName, const Json& memberValue) {
  name(memberName);
  value(memberValue);
}

void JsonWriter::end() {
  m_text += m_isFirst ? "{}\n" : "\n}\n";
  m_console.data(m_text);
  m_text.clear();
}

void JsonWriter::name(std::string_view memberName) {
  m_text += m_isFirst ? "{\n  " : ",\n  ";
  m_isFirst = false;
  value(memberName);
  m_text += ": ";
}

void JsonWriter::value(const Json& value) {
  appendEscaped(m_text, value.dump(-1, ' ', false, Json::error_handler_t::replace));
  if (m_text.size() < kMostHeld) return;
  m_console.data(m_text);
  m_text.clear();
}

}  // namespace glossmill
