#include "xcode/PropertyList.h"

#include <limits>
#include <utility>

#include "xcode/OldPropertyListParser.h"
#include "xcode/PropertyListBuilder.h"
#include "xcode/XmlPropertyListParser.h"
#include "xcode/XmlReader.h"

namespace glossmill {

namespace {
constexpr std::size_t kBytesPerNode = 24;  // fewer than in any project file, so that the list need not grow
}

PropertyList::PropertyList(std::string text) : m_text(std::move(text)) {
  PropertyListBuilder builder(*this);
  if (m_text.size() > std::numeric_limits<std::uint32_t>::max()) {
    builder.finish(PlistMistake{0, "The file is too long."});
    return;
  }
  m_nodes.reserve(m_text.size() / kBytesPerNode);
  builder.finish(isXml(m_text) ? XmlPropertyListParser(m_text, builder).parse()
                               : OldPropertyListParser(m_text, builder).parse());
}

PropertyList::Value PropertyList::root() const {
  return m_nodes.empty() ? Value() : Value(*this, 0);
}

std::string_view PropertyList::textOf(const Node& node) const {
  const std::string& texts = node.isUnescaped ? m_unescaped : m_text;
  return std::string_view(texts).substr(node.begin, node.length);
}

PropertyList::Value PropertyList::Value::operator[](std::string_view key) const {
  Value found;
  for (const auto entry : entries()) {
    if (entry.key == key) found = entry.value;
  }
  return found;
}

PropertyList::Items PropertyList::Value::items() const {
  return kind() == Kind::Array ? Items(firstInside(), following()) : Items({}, {});
}

PropertyList::Entries PropertyList::Value::entries() const {
  return kind() == Kind::Dictionary ? Entries(firstInside(), following()) : Entries({}, {});
}

}  // namespace glossmill
