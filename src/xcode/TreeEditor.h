#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "xcode/ValueTree.h"

namespace glossmill {

/// Names of members, from the outermost object inwards.
using TreePath = std::vector<std::string>;

/// Texts of a tree that come, change and go. All else keeps its bytes: an object that gets or loses members keeps those
/// of the others and the white space around them. New members stand in the order of the names, in the layout of those
/// beside them; in a file without line ends, without any.
class TreeEditor {
 public:
  /// The tree outlives this, has no mistake and an object outermost. `lineEnd` is that of the file.
  TreeEditor(const ValueTree& tree, std::string_view lineEnd);
  ~TreeEditor();
  TreeEditor(const TreeEditor&) = delete;
  TreeEditor& operator=(const TreeEditor&) = delete;

  /// Makes the objects on the way that are missing. False, and nothing changes, where something on the way is no
  /// object.
  bool setText(const TreePath& path, std::string_view text);
  /// The same with a value that is spelled as JSON has it.
  bool setSpelled(const TreePath& path, std::string spelled);
  /// With every repetition of its name, and with the objects around it that are empty then; the first `kept` names of
  /// the path stay. Nothing happens where there is no such member.
  void remove(const TreePath& path, std::size_t kept);

  /// As things are after the edits so far.
  bool holds(const TreePath& path) const;
  /// A text of the file that no edit has changed; nothing for any other.
  std::optional<std::string> textAt(const TreePath& path) const;
  std::vector<std::string> namesIn(const TreePath& path) const;

  /// The whole text with the edits.
  std::string text() const;

 private:
  struct Item;

  void open(Item& item) const;
  Item* find(const TreePath& path, std::size_t length) const;
  Item* make(const TreePath& path);
  Item& addMember(Item& object, const std::string& name);
  void write(std::string& out, const Item& item) const;
  void writeObject(std::string& out, const Item& item) const;
  void writeNew(std::string& out, const Item& item, const std::string& indent) const;
  void writeMember(std::string& out, const Item& item, const std::string& indent) const;
  std::string indentOfLine(std::size_t at) const;
  std::string leadOf(const ValueNode& object) const;
  std::size_t behindComma(const ValueNode& member) const;

  const ValueTree& m_tree;
  std::string m_lineEnd;  ///< empty in a file without lines
  std::string m_unit;     ///< one level of indentation
  std::string m_colon;    ///< with the white space around it
  std::unique_ptr<Item> m_root;
};

}  // namespace glossmill
