#include "xcode/PropertyListBuilder.h"

namespace glossmill {

void PropertyListBuilder::open(Kind kind) {
  append({0, 0, 0, kind, false});
  m_open.push_back({m_list.m_nodes.size() - 1, false});
}

void PropertyListBuilder::close() {
  m_list.m_nodes[m_open.back().node].next = static_cast<std::uint32_t>(m_list.m_nodes.size());
  m_open.pop_back();
}

void PropertyListBuilder::add(Kind kind, std::string_view text) {
  const auto begin = static_cast<std::uint32_t>(text.data() - m_list.m_text.data());
  append({begin, static_cast<std::uint32_t>(text.size()), 0, kind, false});
}

void PropertyListBuilder::addUnescaped(std::string_view text) {
  const auto begin = static_cast<std::uint32_t>(m_list.m_unescaped.size());
  m_list.m_unescaped += text;
  append({begin, static_cast<std::uint32_t>(text.size()), 0, Kind::Text, true});
}

PropertyListBuilder::Kind PropertyListBuilder::openKind() const {
  return m_open.empty() ? Kind::None : m_list.m_nodes[m_open.back().node].kind;
}

void PropertyListBuilder::finish(const std::optional<PlistMistake>& mistake) {
  if (awaitsValue()) m_list.m_nodes.pop_back();
  while (!m_open.empty()) close();
  if (mistake) m_list.m_error = {placeOf(m_list.m_text, mistake->at), std::string(mistake->sentence)};
}

void PropertyListBuilder::append(PropertyList::Node node) {
  if (openKind() == Kind::Dictionary) m_open.back().awaitsValue = !m_open.back().awaitsValue;
  node.next = static_cast<std::uint32_t>(m_list.m_nodes.size() + 1);
  m_list.m_nodes.push_back(node);
}

}  // namespace glossmill
