#include "xcode/TreeEditor.h"

#include <algorithm>
#include <utility>

#include "xcode/CatalogOrder.h"
#include "xcode/JsonText.h"
#include "xcode/SourceText.h"

namespace glossmill {

/// A value as it is to be.
struct TreeEditor::Item {
  ValueTree::Number node = ValueTree::kNone;  ///< where it stands in the file; none for a new one
  std::string name;
  std::optional<std::string> spelled;  ///< a value that comes in its place
  bool isObject = false;
  bool isOpen = false;  ///< its members are known
  bool isChanged = false;
  std::vector<std::unique_ptr<Item>> members;
  std::unordered_map<std::string, Item*> byName;  ///< of repeated ones the last
};

namespace {

/// Where a member of this name goes among the others: where the fewest of them stand on the wrong side of it.
template <typename Members>
std::size_t placeAmong(const Members& members, std::string_view name) {
  std::size_t best = 0;
  std::ptrdiff_t wrong = 0;
  std::ptrdiff_t fewest = 0;
  for (std::size_t at = 0; at < members.size(); ++at) {
    wrong += comesBeforeInCatalog(members[at]->name, name) ? -1 : 1;
    if (wrong > fewest) continue;
    fewest = wrong;
    best = at + 1;
  }
  return best;
}

}  // namespace

TreeEditor::TreeEditor(const ValueTree& tree, std::string_view lineEnd)
    : m_tree(tree), m_lineEnd(lineEnd), m_unit("  "), m_colon(" : "), m_root(std::make_unique<Item>()) {
  m_root->node = 0;
  m_root->isObject = true;
  const ValueNode& root = tree.node(0);
  if (root.first == ValueTree::kNone) return;
  const ValueNode& first = tree.node(root.first);
  const std::string lead = leadOf(root);
  m_unit = lead.find_first_of("\r\n") == std::string::npos ? std::string() : indentOfLine(first.member);
  if (lead.find_first_of("\r\n") == std::string::npos) m_lineEnd.clear();
  const std::size_t nameEnd = first.nameEnd + 1;
  m_colon = std::string(tree.text().substr(nameEnd, first.begin - nameEnd));
}

TreeEditor::~TreeEditor() = default;

void TreeEditor::open(Item& item) const {
  if (item.isOpen) return;
  item.isOpen = true;
  if (item.node == ValueTree::kNone) return;
  m_tree.eachMember(item.node, [&](ValueTree::Number number) {
    auto member = std::make_unique<Item>();
    member->node = number;
    member->name = m_tree.nameOf(number);
    member->isObject = m_tree.isObject(number);
    item.byName[member->name] = member.get();
    item.members.push_back(std::move(member));
  });
}

TreeEditor::Item* TreeEditor::find(const TreePath& path, std::size_t length) const {
  Item* item = m_root.get();
  for (std::size_t at = 0; at < length; ++at) {
    if (!item->isObject) return nullptr;
    open(*item);
    const auto found = item->byName.find(path[at]);
    if (found == item->byName.end()) return nullptr;
    item = found->second;
  }
  return item;
}

TreeEditor::Item& TreeEditor::addMember(Item& object, const std::string& name) {
  auto member = std::make_unique<Item>();
  member->name = name;
  member->isChanged = true;
  Item& added = *member;
  object.byName[name] = &added;
  const std::size_t place = placeAmong(object.members, name);
  object.members.insert(object.members.begin() + static_cast<std::ptrdiff_t>(place), std::move(member));
  return added;
}

/// The member itself, marked as changed with all around it; null where something on the way is no object.
TreeEditor::Item* TreeEditor::make(const TreePath& path) {
  for (std::size_t length = 0; length < path.size(); ++length) {
    const Item* known = find(path, length);
    if (known && !known->isObject) return nullptr;
  }
  const Item* last = find(path, path.size());
  if (last && last->isObject) return nullptr;
  Item* item = m_root.get();
  for (const std::string& name : path) {
    open(*item);
    item->isObject = item->isChanged = true;
    const auto found = item->byName.find(name);
    item = found == item->byName.end() ? &addMember(*item, name) : found->second;
  }
  item->isChanged = true;
  return item;
}

bool TreeEditor::setText(const TreePath& path, std::string_view text) {
  return setSpelled(path, '"' + escapeJson(text) + '"');
}

bool TreeEditor::setSpelled(const TreePath& path, std::string spelled) {
  Item* const item = make(path);
  if (item) item->spelled = std::move(spelled);
  return item != nullptr;
}

void TreeEditor::remove(const TreePath& path, std::size_t kept) {
  if (!find(path, path.size())) return;
  for (std::size_t length = path.size(); length > kept; --length) {
    Item& object = *find(path, length - 1);
    const std::string& name = path[length - 1];
    object.byName.erase(name);
    std::erase_if(object.members, [&name](const auto& member) { return member->name == name; });
    for (std::size_t at = 0; at < length; ++at) find(path, at)->isChanged = true;
    if (!object.members.empty()) return;
  }
}

bool TreeEditor::holds(const TreePath& path) const {
  return find(path, path.size()) != nullptr;
}

std::optional<std::string> TreeEditor::textAt(const TreePath& path) const {
  const Item* const item = find(path, path.size());
  if (!item || item->spelled || !m_tree.isText(item->node)) return std::nullopt;
  return m_tree.textOf(item->node);
}

std::vector<std::string> TreeEditor::namesIn(const TreePath& path) const {
  std::vector<std::string> names;
  Item* const item = find(path, path.size());
  if (!item || !item->isObject) return names;
  open(*item);
  for (const auto& member : item->members) names.push_back(member->name);
  return names;
}

std::string TreeEditor::text() const {
  std::string out(m_tree.text().substr(0, m_tree.node(0).begin));
  write(out, *m_root);
  out += m_tree.text().substr(m_tree.node(0).end);
  return out;
}

void TreeEditor::write(std::string& out, const Item& item) const {
  if (item.spelled) {
    out += *item.spelled;
  } else if (!item.isChanged) {
    out += m_tree.spelled(item.node);
  } else {
    writeObject(out, item);
  }
}

/// White space of the line on which something stands, in front of it.
std::string TreeEditor::indentOfLine(std::size_t at) const {
  const std::string_view text = m_tree.text();
  std::size_t begin = at;
  while (begin > 0 && !isLineEnd(text[begin - 1])) --begin;
  std::size_t end = begin;
  while (end < at && isBlank(text[end])) ++end;
  return std::string(text.substr(begin, end - begin));
}

/// The white space in front of the first member.
std::string TreeEditor::leadOf(const ValueNode& object) const {
  const std::string_view text = m_tree.text();
  const std::size_t end = m_tree.node(object.first).member;
  std::size_t begin = end;
  while (begin > object.inner && (isBlank(text[begin - 1]) || isLineEnd(text[begin - 1]))) --begin;
  return std::string(text.substr(begin, end - begin));
}

std::size_t TreeEditor::behindComma(const ValueNode& member) const {
  return m_tree.text().find(',', member.end) + 1;
}

/// Of members that stay each keeps what stands in front of it; what follows the last one stays at the end.
void TreeEditor::writeObject(std::string& out, const Item& item) const {
  const ValueNode& object = m_tree.node(item.node);
  const bool keepsAny = std::any_of(item.members.begin(), item.members.end(),
                                    [](const auto& member) { return member->node != ValueTree::kNone; });
  if (!keepsAny) return writeNew(out, item, indentOfLine(object.begin));
  const std::string_view text = m_tree.text();
  const std::string lead = leadOf(object);
  const std::string indent = lead.substr(lead.find_last_of("\r\n") + 1);
  std::unordered_map<ValueTree::Number, std::size_t> leads;
  std::size_t from = object.inner;
  std::size_t lastEnd = from;
  m_tree.eachMember(item.node, [&](ValueTree::Number number) {
    leads[number] = from;
    lastEnd = m_tree.node(number).end;
    if (m_tree.node(number).next != ValueTree::kNone) from = behindComma(m_tree.node(number));
  });
  out += text.substr(object.begin, object.inner - object.begin);
  for (const auto& member : item.members) {
    const bool isLast = member == item.members.back();
    if (member->node == ValueTree::kNone) {
      out += lead;
      writeMember(out, *member, indent);
      if (!isLast) out += ',';
      continue;
    }
    const ValueNode& node = m_tree.node(member->node);
    const std::size_t begin = leads[member->node];
    out += text.substr(begin, node.begin - begin);
    write(out, *member);
    const bool wasLast = node.next == ValueTree::kNone;
    if (!isLast) out += wasLast ? "," : text.substr(node.end, behindComma(node) - node.end);
  }
  out += text.substr(lastEnd, object.end - lastEnd);
}

void TreeEditor::writeMember(std::string& out, const Item& item, const std::string& indent) const {
  out += '"' + escapeJson(item.name) + '"' + m_colon;
  if (item.spelled) {
    out += *item.spelled;
  } else {
    writeNew(out, item, indent);
  }
}

/// An object all of whose members are new; Xcode leaves an empty line in one that has none.
void TreeEditor::writeNew(std::string& out, const Item& item, const std::string& indent) const {
  const bool hasLines = !m_lineEnd.empty();
  const std::string inside = hasLines ? indent + m_unit : std::string();
  out += '{';
  if (item.members.empty() && hasLines) out += m_lineEnd;
  for (const auto& member : item.members) {
    if (hasLines) out += m_lineEnd + inside;
    writeMember(out, *member, inside);
    if (member != item.members.back()) out += ',';
  }
  if (hasLines) out += m_lineEnd + indent;
  out += '}';
}

}  // namespace glossmill
