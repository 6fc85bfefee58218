#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// One value of a tree by its places in the text, and its name where it is a member of an object.
struct ValueNode {
  enum class Kind : std::uint8_t {
    Object,
    Text,
    Other,  ///< a number, a list, …: kept and never looked into
  };

  static constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

  Kind kind = Kind::Other;
  bool isPlain = true;          ///< a text reads as it is spelled
  bool isNamePlain = true;      ///< the same of the name
  std::uint32_t member = 0;     ///< where the name begins, with its quote
  std::uint32_t nameBegin = 0;  ///< of what stands between its quotes
  std::uint32_t nameEnd = 0;
  std::uint32_t begin = 0;  ///< of the value, with its quote or brace
  std::uint32_t inner = 0;  ///< of what stands inside
  std::uint32_t innerEnd = 0;
  std::uint32_t end = 0;
  std::uint32_t first = kNone;  ///< the first member of an object
  std::uint32_t next = kNone;   ///< the next member of the same object
};

/// Objects inside one another with texts in them, as string catalogs hold them: values by their
/// places in a text, which it does not own. Node 0 is the outermost value.
class ValueTree {
 public:
  using Number = std::uint32_t;
  static constexpr Number kNone = ValueNode::kNone;
  /// Deeper values are refused, so that nobody who walks through a tree runs out of stack.
  static constexpr std::size_t kMostLevels = 128;

  explicit ValueTree(std::string_view text = {}) : m_text(text) {}

  std::string_view text() const { return m_text; }
  bool empty() const { return m_nodes.empty(); }
  const ValueNode& node(Number number) const { return m_nodes[number]; }
  bool isObject(Number number) const { return number != kNone && m_nodes[number].kind == ValueNode::Kind::Object; }
  bool isText(Number number) const { return number != kNone && m_nodes[number].kind == ValueNode::Kind::Text; }

  std::string nameOf(Number number) const;
  /// "" for what is no text.
  std::string textOf(Number number) const;
  /// As it is spelled, from its quote or brace to the other.
  std::string_view spelled(Number number) const;
  /// The last member of the name, which counts; kNone where there is none, or no object.
  Number member(Number object, std::string_view name) const;

  /// Calls `visit(Number)` for each member, in the order of the text.
  template <typename Visit>
  void eachMember(Number object, Visit visit) const {
    if (!isObject(object)) return;
    for (Number at = m_nodes[object].first; at != kNone; at = m_nodes[at].next) visit(at);
  }

  // For the readers.
  Number add(const ValueNode& node);
  ValueNode& change(Number number) { return m_nodes[number]; }

 private:
  bool isNamed(Number number, std::string_view name) const;

  std::string_view m_text;
  std::vector<ValueNode> m_nodes;
};

}  // namespace glossmill
