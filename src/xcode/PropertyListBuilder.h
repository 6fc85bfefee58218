#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "xcode/PropertyList.h"

namespace glossmill {

/// What is not correct, and where in the text.
struct PlistMistake {
  std::size_t at = 0;
  std::string_view sentence;  ///< a literal
};

/// Puts the values of a list together, in the order in which they are read. In a dictionary keys and values take turns.
class PropertyListBuilder {
 public:
  using Kind = PropertyList::Kind;

  /// Deeper values are refused, so that nobody who walks through a list runs out of stack.
  static constexpr std::size_t kMostLevels = 512;

  /// `list` is empty, but for its text.
  explicit PropertyListBuilder(PropertyList& list) : m_list(list) {}

  bool isFull() const { return m_open.size() == kMostLevels; }
  /// A dictionary or an array, when it is not full.
  void open(Kind kind);
  void close();
  /// A text that lies in the text of the list.
  void add(Kind kind, std::string_view text);
  /// Any other.
  void addUnescaped(std::string_view text);

  /// The innermost dictionary or array that is not closed; None outside.
  Kind openKind() const;
  /// In a dictionary: a key came, its value did not.
  bool awaitsValue() const { return !m_open.empty() && m_open.back().awaitsValue; }
  /// There is a value and nothing is open.
  bool isComplete() const { return m_open.empty() && !m_list.m_nodes.empty(); }

  /// Closes what is open, without a key that has no value.
  void finish(const std::optional<PlistMistake>& mistake);

 private:
  struct Open {
    std::size_t node = 0;
    bool awaitsValue = false;
  };

  void append(PropertyList::Node node);

  PropertyList& m_list;
  std::vector<Open> m_open;
};

}  // namespace glossmill
