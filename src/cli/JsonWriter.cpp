#include "cli/JsonWriter.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostHeld = 1 << 20;

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
  m_text += value.dump(-1, ' ', false, Json::error_handler_t::replace);
  if (m_text.size() < kMostHeld) return;
  m_console.data(m_text);
  m_text.clear();
}

}  // namespace glossmill
