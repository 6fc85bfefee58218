#include "formats/InlineText.h"

#include <cstring>
#include <string_view>

#include "formats/XmlCheck.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

bool isText(const pugi::xml_node& node) {
  return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

/// Depth is bounded by what checkXml() lets through.
void append(InlineText& inlined, const pugi::xml_node& element) {
  for (const pugi::xml_node& child : element.children()) {
    if (isText(child)) inlined.text += child.value();
    if (child.type() != pugi::node_element) continue;
    const std::string_view name = localName(child.name());
    const bool holdsText =
        name == "mrk" || name == "sub" || name == "bpt" || name == "ept" || name == "ph" || name == "it";
    if (holdsText) append(inlined, child);
    if (!holdsText && inlined.tag.empty()) inlined.tag = name;
  }
}

std::string_view trimmedHex(const char* digits) {
  const std::string_view hex = digits;
  return hex.size() <= 6 ? hex : std::string_view();
}

/// Of `<cp hex="001B"/>`; nothing where it names no character.
std::optional<char32_t> characterOf(const pugi::xml_node& element) {
  const std::string_view hex = trimmedHex(element.attribute("hex").value());
  if (hex.empty()) return std::nullopt;
  char32_t value = 0;
  for (const char byte : hex) {
    const char letter = static_cast<char>(byte | 0x20);
    const bool isDigit = byte >= '0' && byte <= '9';
    if (!isDigit && (letter < 'a' || letter > 'f')) return std::nullopt;
    value = value * 16 + static_cast<char32_t>(isDigit ? byte - '0' : letter - 'a' + 10);
  }
  const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
  return value <= 0x10FFFF && !isSurrogate ? std::optional(value) : std::nullopt;
}

class Inliner {
 public:
  explicit Inliner(const pugi::xml_node& unit) : m_data(childNamed(unit, "originalData")) {}

  InlineText inlined(const pugi::xml_node& element) {
    append(element);
    return std::move(m_inlined);
  }

 private:
  void append(const pugi::xml_node& element) {
    for (const pugi::xml_node& child : element.children()) {
      if (isText(child)) m_inlined.text += child.value();
      if (child.type() == pugi::node_element) appendElement(child);
    }
  }

  void appendElement(const pugi::xml_node& element) {
    const std::string_view name = localName(element.name());
    if (name == "sm" || name == "em") return;
    if (name == "mrk") return append(element);
    if (name == "cp") return appendCharacter(element);
    if (name == "ph" || name == "sc" || name == "ec") return appendData(element, "dataRef");
    if (name != "pc") return refuse(element);
    appendData(element, "dataRefStart");
    append(element);
    appendData(element, "dataRefEnd");
  }

  void appendCharacter(const pugi::xml_node& element) {
    const std::optional<char32_t> character = characterOf(element);
    if (!character) return refuse(element);
    appendUtf8(m_inlined.text, *character);
  }

  void appendData(const pugi::xml_node& element, const char* reference) {
    const std::string_view id = element.attribute(reference).value();
    for (const pugi::xml_node& data : m_data.children()) {
      if (id.empty() || id != data.attribute("id").value()) continue;
      return append(data);
    }
    refuse(element);
  }

  void refuse(const pugi::xml_node& element) {
    if (m_inlined.tag.empty()) m_inlined.tag = localName(element.name());
  }

  pugi::xml_node m_data;
  InlineText m_inlined;
};

}  // namespace

InlineText inlineText(const pugi::xml_node& element) {
  InlineText inlined;
  append(inlined, element);
  return inlined;
}

InlineText inlineText2(const pugi::xml_node& element, const pugi::xml_node& unit) {
  return Inliner(unit).inlined(element);
}

bool isNamed(const pugi::xml_node& node, const char* name) {
  const char* const own = node.name();
  return node.type() == pugi::node_element && (std::strcmp(own, name) == 0 || localName(own) == name);
}

pugi::xml_node childNamed(const pugi::xml_node& parent, const char* name) {
  for (const pugi::xml_node& child : parent.children()) {
    if (isNamed(child, name)) return child;
  }
  return {};
}

}  // namespace glossmill
