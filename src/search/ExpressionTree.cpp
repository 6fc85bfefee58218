#include "search/ExpressionTree.h"

#include <optional>
#include <string>
#include <utility>

#include "text/FoldCase.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

using Node = ExpressionNode;
using Kind = ExpressionNode::Kind;

constexpr std::size_t kMostRepeats = 1000;
constexpr std::size_t kDeepest = 100;

Node nodeOf(Kind kind) {
  Node node;
  node.kind = kind;
  return node;
}

std::optional<CharacterSet::Class> classOf(char32_t letter) {
  switch (letter) {
    case 'd':
    case 'D':
      return CharacterSet::Class{CharacterSet::Kind::Digits, letter == 'D'};
    case 'w':
    case 'W':
      return CharacterSet::Class{CharacterSet::Kind::Words, letter == 'W'};
    case 's':
    case 'S':
      return CharacterSet::Class{CharacterSet::Kind::Blanks, letter == 'S'};
    default:
      return std::nullopt;
  }
}

/// Goes through the pattern once. Once something is wrong the first sentence stays, and all that is read is thrown
/// away.
class Reader {
 public:
  Reader(std::string_view pattern, bool foldsCase) : m_foldsCase(foldsCase) {
    while (!pattern.empty()) m_pattern.push_back(takeCodePoint(pattern));
  }

  Result<ExpressionTree> read() {
    ExpressionTree tree;
    tree.root = alternation(0);
    if (!m_problem && !atEnd()) complain("there is a ) without its (", m_at);
    if (m_problem) return Error{*m_problem};
    tree.groups = m_groups;
    return tree;
  }

 private:
  bool atEnd() const { return m_at >= m_pattern.size() || m_problem; }
  bool isAt(char32_t character) const { return !atEnd() && m_pattern[m_at] == character; }
  bool isAt(std::u32string_view text) const {
    return !atEnd() && std::u32string_view(m_pattern).substr(m_at).starts_with(text);
  }
  bool take(char32_t character) {
    if (!isAt(character)) return false;
    ++m_at;
    return true;
  }
  void complain(const std::string& what, std::size_t place) {
    if (!m_problem) m_problem = "At character " + std::to_string(place + 1) + " of the expression " + what + ".";
  }

  Node alternation(std::size_t depth);
  Node sequence(std::size_t depth);
  Node repeated(Node node, std::size_t place);
  Node atom(std::size_t depth);
  Node group(std::size_t depth);
  Node escape();
  Node set();
  Node characterNode(char32_t character) const;
  void addToSet(CharacterSet& set);
  char32_t setCharacter();
  char32_t escapedCharacter(char32_t letter, std::size_t place);
  char32_t hexadecimal(std::size_t place);
  bool takeCount(Node& repetition);
  std::optional<std::size_t> number();

  std::u32string m_pattern;
  bool m_foldsCase;
  std::size_t m_at = 0;
  std::size_t m_groups = 0;
  std::optional<std::string> m_problem;
};

Node Reader::alternation(std::size_t depth) {
  if (depth > kDeepest) complain("groups lie too deep in one another", m_at);
  Node node = nodeOf(Kind::Alternation);
  do {
    node.children.push_back(sequence(depth));
  } while (take('|'));
  return node.children.size() == 1 ? Node(std::move(node.children.front())) : node;
}

Node Reader::sequence(std::size_t depth) {
  Node node = nodeOf(Kind::Sequence);
  while (!atEnd() && !isAt('|') && !isAt(')')) {
    const std::size_t place = m_at;
    node.children.push_back(repeated(atom(depth), place));
  }
  return node;
}

Node Reader::repeated(Node node, std::size_t place) {
  Node repetition = nodeOf(Kind::Repetition);
  repetition.most = Node::kNoEnd;
  if (take('+')) {
    repetition.least = 1;
  } else if (take('?')) {
    repetition.most = 1;
  } else if (!take('*') && !takeCount(repetition)) {
    return node;
  }
  repetition.isLazy = take('?');
  if (isAt('*') || isAt('+') || isAt('?')) complain("something is repeated twice", m_at);
  const bool isEdge = node.kind == Kind::LineBegin || node.kind == Kind::LineEnd || node.kind == Kind::WordEdge ||
                      node.kind == Kind::NoWordEdge;
  if (isEdge) complain("a place is repeated that takes no character", place);
  repetition.children.push_back(std::move(node));
  return repetition;
}

/// "{3}", "{3,}" or "{3,5}"; any other brace is a character like others.
bool Reader::takeCount(Node& repetition) {
  const std::size_t begin = m_at;
  if (!take('{')) return false;
  const std::optional<std::size_t> least = number();
  const bool isRange = least && take(',');
  const std::optional<std::size_t> most = isRange ? number() : least;
  if (!least || !take('}')) {
    m_at = begin;
    return false;
  }
  repetition.least = *least;
  repetition.most = most.value_or(Node::kNoEnd);
  if (repetition.most < repetition.least) complain("a repetition runs backwards", begin);
  if (*least > kMostRepeats || (most && *most > kMostRepeats)) complain("a repetition goes beyond 1000", begin);
  return true;
}

std::optional<std::size_t> Reader::number() {
  std::optional<std::size_t> value;
  while (!atEnd() && m_pattern[m_at] >= '0' && m_pattern[m_at] <= '9') {
    const std::size_t digit = m_pattern[m_at++] - '0';
    value = std::min(value.value_or(0) * 10 + digit, kMostRepeats + 1);
  }
  return value;
}

Node Reader::atom(std::size_t depth) {
  const std::size_t place = m_at;
  const char32_t character = m_pattern[m_at++];
  switch (character) {
    case '.':
      return nodeOf(Kind::Any);
    case '^':
      return nodeOf(Kind::LineBegin);
    case '$':
      return nodeOf(Kind::LineEnd);
    case '(':
      return group(depth);
    case '[':
      return set();
    case '\\':
      return escape();
    case '*':
    case '+':
    case '?':
      complain("there is nothing to repeat", place);
      return {};
    default:
      return characterNode(character);
  }
}

Node Reader::group(std::size_t depth) {
  const std::size_t begin = m_at - 1;
  Node node = nodeOf(Kind::Group);
  if (isAt(U"?:")) {
    m_at += 2;
  } else if (isAt('?')) {
    complain("stands a (? that is not known", begin);
  } else {
    node.number = ++m_groups;
  }
  node.children.push_back(alternation(depth + 1));
  if (!take(')')) complain("a ( is not closed", begin);
  return node.number == 0 ? Node(std::move(node.children.front())) : node;
}

Node Reader::characterNode(char32_t character) const {
  std::string text;
  appendUtf8(text, character);
  if (m_foldsCase) text = foldCase(text);
  std::string_view rest = text;
  Node node = nodeOf(Kind::Character);
  node.character = takeCodePoint(rest);
  return node;
}

Node Reader::escape() {
  const std::size_t place = m_at - 1;
  if (atEnd()) {
    complain("nothing follows the backslash", place);
    return {};
  }
  const char32_t letter = m_pattern[m_at++];
  if (letter == 'b') return nodeOf(Kind::WordEdge);
  if (letter == 'B') return nodeOf(Kind::NoWordEdge);
  if (const auto known = classOf(letter)) {
    Node node = nodeOf(Kind::Set);
    node.set.classes.push_back(*known);
    return node;
  }
  return characterNode(escapedCharacter(letter, place));
}

char32_t Reader::escapedCharacter(char32_t letter, std::size_t place) {
  switch (letter) {
    case 't':
      return '\t';
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 'u':
      return hexadecimal(place);
    default:
      break;
  }
  const char32_t lower = letter | 0x20;
  if (letter >= '1' && letter <= '9') complain("stands a reference to a group, which is not supported", place);
  if ((lower >= 'a' && lower <= 'z') || letter == '0')
    complain("stands a backslash before a letter that has no meaning there", place);
  return letter;
}

char32_t Reader::hexadecimal(std::size_t place) {
  char32_t value = 0;
  for (int digit = 0; digit < 4; ++digit, ++m_at) {
    const char32_t character = atEnd() ? U' ' : m_pattern[m_at];
    const char32_t lower = character | 0x20;
    const bool isNumber = character >= '0' && character <= '9';
    const bool isLetter = lower >= 'a' && lower <= 'f';
    if (!isNumber && !isLetter) {
      complain("\\u is not followed by four hexadecimal digits", place);
      return 0;
    }
    value = value * 16 + (isNumber ? character - '0' : lower - 'a' + 10);
  }
  return value;
}

Node Reader::set() {
  const std::size_t begin = m_at - 1;
  Node node = nodeOf(Kind::Set);
  node.set.isNegated = take('^');
  // A bracket in the first place is a character of the set.
  bool isFirst = true;
  while (!atEnd() && (isFirst || !isAt(']'))) {
    addToSet(node.set);
    isFirst = false;
  }
  if (!take(']')) complain("a [ is not closed", begin);
  if (m_foldsCase && !m_problem) node.set.foldCases();
  return node;
}

void Reader::addToSet(CharacterSet& set) {
  const std::size_t place = m_at;
  if (isAt('\\') && m_at + 1 < m_pattern.size()) {
    if (const auto known = classOf(m_pattern[m_at + 1])) {
      m_at += 2;
      set.classes.push_back(*known);
      return;
    }
  }
  const char32_t first = setCharacter();
  char32_t last = first;
  const bool isRange = isAt('-') && m_at + 1 < m_pattern.size() && m_pattern[m_at + 1] != ']';
  if (isRange) {
    ++m_at;
    last = setCharacter();
  }
  if (last < first) complain("a range of characters runs backwards", place);
  set.stretches.emplace_back(first, last);
}

char32_t Reader::setCharacter() {
  const std::size_t place = m_at;
  const char32_t character = m_pattern[m_at++];
  if (character != '\\') return character;
  if (!atEnd()) return escapedCharacter(m_pattern[m_at++], place);
  complain("nothing follows the backslash", place);
  return 0;
}

}  // namespace

Result<ExpressionTree> readExpression(std::string_view pattern, bool foldsCase) {
  return Reader(pattern, foldsCase).read();
}

}  // namespace glossmill
