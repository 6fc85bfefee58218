#include "xcode/JsonTreeReader.h"

#include <cstddef>

#include "xcode/JsonText.h"
#include "xcode/PlistWords.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

using Number = ValueTree::Number;

/// Behind the number at `at`; `at` when there is none.
std::size_t endOfNumber(std::string_view text, std::size_t at) {
  const auto skipDigits = [&text](std::size_t from) {
    while (from < text.size() && isDigit(text[from])) ++from;
    return from;
  };
  const auto isAt = [&text](std::size_t place, std::string_view any) {
    return place < text.size() && any.find(text[place]) != std::string_view::npos;
  };
  const std::size_t first = isAt(at, "-") ? at + 1 : at;
  std::size_t end = isAt(first, "0") ? first + 1 : skipDigits(first);
  if (end == first) return at;
  if (isAt(end, ".")) {
    const std::size_t fraction = skipDigits(end + 1);
    if (fraction == end + 1) return at;
    end = fraction;
  }
  if (!isAt(end, "eE")) return end;
  const std::size_t power = isAt(end + 1, "+-") ? end + 2 : end + 1;
  const std::size_t behind = skipDigits(power);
  return behind == power ? at : behind;
}

class JsonTreeReader {
 public:
  explicit JsonTreeReader(std::string_view text) : m_text(text), m_tree(text), m_at(behindMarks(text)) {}

  ReadTree read() {
    Siblings none;
    skipSpace();
    if (takeValue(none, {})) {
      skipSpace();
      if (m_at != m_text.size()) fail(m_at, "Nothing may follow the end of the object.");
    }
    return {std::move(m_tree), m_mistake};
  }

 private:
  /// The members of an object that are read one by one.
  struct Siblings {
    Number object = ValueTree::kNone;
    Number last = ValueTree::kNone;
  };

  /// At once, so that what stands in front of a mistake can be read.
  Number add(Siblings& siblings, const ValueNode& node) {
    const Number number = m_tree.add(node);
    if (siblings.object == ValueTree::kNone) return number;
    const bool isFirst = siblings.last == ValueTree::kNone;
    (isFirst ? m_tree.change(siblings.object).first : m_tree.change(siblings.last).next) = number;
    siblings.last = number;
    return number;
  }

  // Each of these returns false after a mistake.
  bool takeValue(Siblings& siblings, const ValueNode& named) {
    if (m_levels == ValueTree::kMostLevels) return fail(m_at, "Values are nested too deep.");
    ValueNode node = named;
    node.begin = place();
    if (isAt('{')) return takeObject(siblings, node);
    if (isAt('"')) return takeText(siblings, node);
    if (!isAt('[') && !takeWord()) return false;
    const Number number = add(siblings, node);
    if (isAt('[') && m_at == node.begin && !takeList()) return false;
    m_tree.change(number).end = place();
    return true;
  }

  bool takeText(Siblings& siblings, ValueNode& node) {
    node.kind = ValueNode::Kind::Text;
    if (!takeQuoted(node.inner, node.innerEnd, node.isPlain)) return false;
    node.end = place();
    add(siblings, node);
    return true;
  }

  bool takeObject(Siblings& siblings, ValueNode& node) {
    node.kind = ValueNode::Kind::Object;
    node.inner = static_cast<std::uint32_t>(++m_at);
    Siblings members{add(siblings, node), ValueTree::kNone};
    ++m_levels;
    skipSpace();
    while (!isAt('}')) {
      if (members.last != ValueTree::kNone && !takeComma()) return false;
      if (!takeMember(members)) return false;
      skipSpace();
    }
    --m_levels;
    m_tree.change(members.object).innerEnd = place();
    ++m_at;
    m_tree.change(members.object).end = place();
    return true;
  }

  bool takeComma() {
    if (!isAt(',')) return fail(m_at, m_at == m_text.size() ? kEndsEarly : "“,” or “}” is missing here.");
    ++m_at;
    skipSpace();
    return true;
  }

  bool takeMember(Siblings& siblings) {
    ValueNode node;
    node.member = place();
    if (!isAt('"')) return fail(m_at, m_at == m_text.size() ? kEndsEarly : "A name between quotes is missing here.");
    if (!takeQuoted(node.nameBegin, node.nameEnd, node.isNamePlain)) return false;
    skipSpace();
    if (!isAt(':')) return fail(m_at, "“:” is missing behind a name.");
    ++m_at;
    skipSpace();
    return takeValue(siblings, node);
  }

  bool takeQuoted(std::uint32_t& begin, std::uint32_t& end, bool& isPlain) {
    const std::size_t open = m_at++;
    begin = place();
    for (; m_at < m_text.size() && m_text[m_at] != '"'; ++m_at) {
      if (static_cast<unsigned char>(m_text[m_at]) < 0x20) {
        return fail(m_at, "A text between quotes holds a line end or another control character.");
      }
      if (m_text[m_at] != '\\') continue;
      isPlain = false;
      const std::size_t behind = endOfJsonEscape(m_text, m_at);
      if (behind == m_at) return fail(m_at, "This is no escape that JSON knows.");
      m_at = behind - 1;
    }
    if (m_at == m_text.size()) return fail(open, "A text between quotes is not closed.");
    end = place();
    ++m_at;
    return true;
  }

  /// What is inside does not become part of the tree, but for the depth.
  bool takeList() {
    ++m_at;
    ++m_levels;
    skipSpace();
    for (bool isFirst = true; !isAt(']'); isFirst = false) {
      if (!isFirst && !isAt(',')) return fail(m_at, m_at == m_text.size() ? kEndsEarly : "“,” or “]” is missing here.");
      if (!isFirst) ++m_at;
      skipSpace();
      Siblings none;
      if (!takeValue(none, {})) return false;
      skipSpace();
    }
    --m_levels;
    ++m_at;
    return true;
  }

  bool takeWord() {
    const std::string_view rest = m_text.substr(m_at);
    for (const std::string_view word : {"true", "false", "null"}) {
      if (!rest.starts_with(word)) continue;
      m_at += word.size();
      return true;
    }
    const std::size_t end = endOfNumber(m_text, m_at);
    if (end == m_at) return fail(m_at, m_at == m_text.size() ? kEndsEarly : "A value is missing here.");
    m_at = end;
    return true;
  }

  void skipSpace() {
    while (isAt(' ') || isAt('\n') || isAt('\r') || isAt('\t')) ++m_at;
  }

  bool isAt(char character) const { return m_at < m_text.size() && m_text[m_at] == character; }
  std::uint32_t place() const { return static_cast<std::uint32_t>(m_at); }

  bool fail(std::size_t at, std::string_view sentence) {
    m_mistake = {at, sentence};
    return false;
  }

  static constexpr std::string_view kEndsEarly = "The file ends before its object does.";

  std::string_view m_text;
  ValueTree m_tree;
  std::size_t m_at;
  std::size_t m_levels = 0;
  std::optional<PlistMistake> m_mistake;
};

}  // namespace

ReadTree readJsonTree(std::string_view text) {
  return JsonTreeReader(text).read();
}

}  // namespace glossmill
