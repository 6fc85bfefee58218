#include "formats/XmlEscapes.h"

#include <algorithm>

namespace glossmill {

namespace {

void appendEscaped(std::string& xml, std::string_view text, std::string_view special) {
  while (!text.empty()) {
    const std::size_t plain = std::min(text.find_first_of(special), text.size());
    xml += text.substr(0, plain);
    if (plain == text.size()) return;
    switch (text[plain]) {
      case '&':
        xml += "&amp;";
        break;
      case '<':
        xml += "&lt;";
        break;
      case '>':
        xml += "&gt;";
        break;
      case '"':
        xml += "&quot;";
        break;
      default:
        xml += "&#" + std::to_string(static_cast<int>(text[plain])) + ";";
    }
    text.remove_prefix(plain + 1);
  }
}

}  // namespace

void appendXmlText(std::string& xml, std::string_view text) {
  appendEscaped(xml, text, "&<>\r");
}

void appendXmlAttribute(std::string& xml, std::string_view name, std::string_view value) {
  xml.append(" ").append(name).append("=\"");
  appendEscaped(xml, value, "&<>\"\t\n\r");
  xml += '"';
}

std::string xmlLanguage(std::string_view code) {
  std::string spelled(code);
  std::ranges::replace(spelled, '_', '-');
  return spelled;
}

}  // namespace glossmill
