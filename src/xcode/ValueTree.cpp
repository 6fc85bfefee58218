#include "xcode/ValueTree.h"

#include "xcode/JsonText.h"

namespace glossmill {

namespace {

std::string readSpelled(std::string_view spelled, bool isPlain) {
  return isPlain ? std::string(spelled) : unescapeJson(spelled);
}

}  // namespace

std::string ValueTree::nameOf(Number number) const {
  const ValueNode& node = m_nodes[number];
  return readSpelled(m_text.substr(node.nameBegin, node.nameEnd - node.nameBegin), node.isNamePlain);
}

std::string ValueTree::textOf(Number number) const {
  if (!isText(number)) return {};
  const ValueNode& node = m_nodes[number];
  return readSpelled(m_text.substr(node.inner, node.innerEnd - node.inner), node.isPlain);
}

std::string_view ValueTree::spelled(Number number) const {
  return m_text.substr(m_nodes[number].begin, m_nodes[number].end - m_nodes[number].begin);
}

bool ValueTree::isNamed(Number number, std::string_view name) const {
  const ValueNode& node = m_nodes[number];
  if (!node.isNamePlain) return nameOf(number) == name;
  return m_text.substr(node.nameBegin, node.nameEnd - node.nameBegin) == name;
}

ValueTree::Number ValueTree::member(Number object, std::string_view name) const {
  Number found = kNone;
  eachMember(object, [&](Number at) {
    if (isNamed(at, name)) found = at;
  });
  return found;
}

ValueTree::Number ValueTree::add(const ValueNode& node) {
  m_nodes.push_back(node);
  return static_cast<Number>(m_nodes.size() - 1);
}

}  // namespace glossmill
