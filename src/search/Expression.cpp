#include "search/Expression.h"

#include <algorithm>
#include <utility>

#include "search/ExpressionTree.h"
#include "text/CharacterKinds.h"
#include "text/Utf8.h"

namespace glossmill {

/// Makes steps of a tree. Repetitions are written out, so their number is limited.
class ExpressionBuilder {
 public:
  Result<Expression> build(const ExpressionTree& tree) {
    m_made.m_groups = tree.groups;
    keep(0);
    add(tree.root);
    keep(1);
    addStep({Action::Accept, 0, 0, 0});
    if (m_isTooLarge) return Error{"The expression is too large."};
    if (tree.root.kind == ExpressionNode::Kind::Sequence) findRequired(tree.root);
    findFirst();
    return std::move(m_made);
  }

 private:
  using Action = Expression::Action;
  using Step = Expression::Step;
  static constexpr std::size_t kMostSteps = 20000;

  std::uint32_t here() const { return static_cast<std::uint32_t>(m_made.m_steps.size()); }
  std::uint32_t addStep(const Step& step) {
    if (m_made.m_steps.size() >= kMostSteps) {
      m_isTooLarge = true;
      return 0;
    }
    m_made.m_steps.push_back(step);
    return here() - 1;
  }
  Step& at(std::uint32_t step) { return m_made.m_steps[step]; }
  void keep(std::size_t slot) { addStep({Action::Keep, 0, static_cast<std::uint32_t>(slot), 0}); }

  void add(const ExpressionNode& node);
  void addAlternation(const ExpressionNode& node);
  void addRepetition(const ExpressionNode& node);
  void addOptional(const ExpressionNode& child, bool isLazy, bool isEndless);
  void addSet(const CharacterSet& set);
  void findRequired(const ExpressionNode& sequence);
  void findFirst();
  void addFirst(const Step& step);

  Expression m_made;
  bool m_isTooLarge = false;
};

void ExpressionBuilder::add(const ExpressionNode& node) {
  using Kind = ExpressionNode::Kind;
  if (m_isTooLarge) return;
  switch (node.kind) {
    case Kind::Sequence:
      for (const ExpressionNode& child : node.children) add(child);
      break;
    case Kind::Alternation:
      return addAlternation(node);
    case Kind::Repetition:
      return addRepetition(node);
    case Kind::Group:
      keep(2 * node.number);
      add(node.children.front());
      return keep(2 * node.number + 1);
    case Kind::Character:
      addStep({Action::Character, node.character, 0, 0});
      break;
    case Kind::Set:
      return addSet(node.set);
    case Kind::Any:
      addStep({Action::Any, 0, 0, 0});
      break;
    case Kind::LineBegin:
      addStep({Action::LineBegin, 0, 0, 0});
      break;
    case Kind::LineEnd:
      addStep({Action::LineEnd, 0, 0, 0});
      break;
    case Kind::WordEdge:
      addStep({Action::WordEdge, 0, 0, 0});
      break;
    case Kind::NoWordEdge:
      addStep({Action::NoWordEdge, 0, 0, 0});
      break;
  }
}

void ExpressionBuilder::addSet(const CharacterSet& set) {
  addStep({Action::Set, 0, static_cast<std::uint32_t>(m_made.m_sets.size()), 0});
  m_made.m_sets.push_back(set);
}

void ExpressionBuilder::addAlternation(const ExpressionNode& node) {
  std::vector<std::uint32_t> ends;
  for (std::size_t i = 0; i + 1 < node.children.size(); ++i) {
    const std::uint32_t fork = addStep({Action::Fork, 0, here() + 1, 0});
    add(node.children[i]);
    ends.push_back(addStep({Action::Jump, 0, 0, 0}));
    at(fork).other = here();
  }
  add(node.children.back());
  for (const std::uint32_t end : ends) at(end).target = here();
}

void ExpressionBuilder::addRepetition(const ExpressionNode& node) {
  const ExpressionNode& child = node.children.front();
  for (std::size_t i = 0; i < node.least && !m_isTooLarge; ++i) add(child);
  if (node.most == ExpressionNode::kNoEnd) return addOptional(child, node.isLazy, true);
  // Each further one only behind the one before, which leaves all of them at once.
  std::vector<std::uint32_t> forks;
  for (std::size_t i = node.least; i < node.most && !m_isTooLarge; ++i) {
    forks.push_back(addStep({Action::Fork, 0, here() + 1, 0}));
    add(child);
  }
  for (const std::uint32_t fork : forks) {
    at(fork).other = here();
    if (node.isLazy) std::swap(at(fork).target, at(fork).other);
  }
}

void ExpressionBuilder::addOptional(const ExpressionNode& child, bool isLazy, bool isEndless) {
  const std::uint32_t fork = addStep({Action::Fork, 0, here() + 1, 0});
  add(child);
  if (isEndless) addStep({Action::Jump, 0, fork, 0});
  if (m_isTooLarge) return;
  at(fork).other = here();
  if (isLazy) std::swap(at(fork).target, at(fork).other);
}

/// The longest run of characters that nothing stands between or beside as a choice.
void ExpressionBuilder::findRequired(const ExpressionNode& sequence) {
  std::string run;
  for (const ExpressionNode& child : sequence.children) {
    if (child.kind == ExpressionNode::Kind::Character) {
      appendUtf8(run, child.character);
    } else {
      run.clear();
    }
    if (run.size() > m_made.m_required.size()) m_made.m_required = run;
  }
}

/// What stands in front of every character that a match may begin with takes none.
void ExpressionBuilder::findFirst() {
  std::vector<bool> isSeen(m_made.m_steps.size());
  std::vector<std::uint32_t> open = {0};
  while (!open.empty()) {
    const std::uint32_t number = open.back();
    open.pop_back();
    if (isSeen[number]) continue;
    isSeen[number] = true;
    const Step& step = at(number);
    const bool isFork = step.action == Action::Fork;
    const bool isJump = step.action == Action::Jump;
    const bool takesCharacter =
        step.action == Action::Character || step.action == Action::Any || step.action == Action::Set;
    if (takesCharacter) addFirst(step);
    if (isFork) open.push_back(step.other);
    if (isFork || isJump) open.push_back(step.target);
    if (!isFork && !isJump && !takesCharacter && step.action != Action::Accept) open.push_back(number + 1);
  }
}

void ExpressionBuilder::addFirst(const Step& step) {
  if (step.action == Action::Character) {
    std::string text;
    appendUtf8(text, step.character);
    m_made.m_first[static_cast<unsigned char>(text.front())] = true;
    return;
  }
  for (std::size_t byte = 0; byte < m_made.m_first.size(); ++byte) {
    const bool isAscii = byte < 0x80;
    const bool isTaken =
        step.action == Action::Any ? byte != '\n' : m_made.m_sets[step.target].holds(static_cast<char32_t>(byte));
    if (!isAscii || isTaken) m_made.m_first[byte] = true;
  }
}

/// One look for a match: the ways that are still open, the preferred ones first.
class ExpressionRun {
 public:
  ExpressionRun(const Expression& expression, std::string_view text)
      : m_expression(expression), m_text(text), m_seen(expression.m_steps.size(), kNever) {}

  std::optional<ExpressionMatch> find(std::size_t from);

 private:
  using Action = Expression::Action;
  using Step = Expression::Step;
  using Kept = std::vector<std::size_t>;  ///< begins and ends: of the match, then of each group
  struct Way {
    std::uint32_t step = 0;
    Kept kept;
  };
  static constexpr std::size_t kNever = ~std::size_t{0};

  Kept nothingKept() const { return Kept(2 * m_expression.m_groups + 2, kNever); }
  void follow(std::vector<Way>& ways, std::uint32_t step, const Kept& kept, std::size_t at);
  void followStep(std::vector<Way>& ways, Way& way, std::size_t at);
  bool isAt(Action place, std::size_t at) const;
  bool isWordEdge(std::size_t at) const;
  bool takes(const Step& step, char32_t character) const;
  bool accepts(const Way& way) const { return m_expression.m_steps[way.step].action == Action::Accept; }
  /// Goes one character on; remembers the match that a way has come to, which ends those that are less preferred.
  void advance(char32_t character, std::size_t next);
  ExpressionMatch matchOf(const Kept& kept) const;

  const Expression& m_expression;
  std::string_view m_text;
  std::vector<Way> m_ways;
  std::vector<Way> m_nextWays;
  std::vector<Way> m_open;          ///< steps that are to be followed yet
  std::vector<std::size_t> m_seen;  ///< by step: the last place at which it was followed
  std::optional<Kept> m_best;
};

bool ExpressionRun::isWordEdge(std::size_t at) const {
  const auto isWordAt = [this](std::size_t begin) {
    std::string_view rest = m_text.substr(begin);
    return isWordCharacter(takeCodePoint(rest));
  };
  std::size_t before = at;
  while (before > 0 && (static_cast<unsigned char>(m_text[--before]) & 0xC0) == 0x80) {
  }
  const bool isBehindWord = at > 0 && isWordAt(before);
  const bool isBeforeWord = at < m_text.size() && isWordAt(at);
  return isBehindWord != isBeforeWord;
}

bool ExpressionRun::isAt(Action place, std::size_t at) const {
  if (place == Action::LineBegin) return at == 0 || m_text[at - 1] == '\n';
  if (place == Action::LineEnd) return at == m_text.size() || m_text[at] == '\n';
  return isWordEdge(at) == (place == Action::WordEdge);
}

/// Goes on through all steps that take no character. Not by calling itself: an expression may have many of them.
void ExpressionRun::follow(std::vector<Way>& ways, std::uint32_t step, const Kept& kept, std::size_t at) {
  m_open.push_back({step, kept});
  while (!m_open.empty()) {
    Way way = std::move(m_open.back());
    m_open.pop_back();
    if (m_seen[way.step] == at) continue;
    m_seen[way.step] = at;
    followStep(ways, way, at);
  }
}

void ExpressionRun::followStep(std::vector<Way>& ways, Way& way, std::size_t at) {
  const Step& step = m_expression.m_steps[way.step];
  switch (step.action) {
    case Action::Jump:
      m_open.push_back({step.target, std::move(way.kept)});
      break;
    case Action::Fork:
      m_open.push_back({step.other, way.kept});
      m_open.push_back({step.target, std::move(way.kept)});
      break;
    case Action::Keep:
      way.kept[step.target] = at;
      m_open.push_back({way.step + 1, std::move(way.kept)});
      break;
    case Action::LineBegin:
    case Action::LineEnd:
    case Action::WordEdge:
    case Action::NoWordEdge:
      if (isAt(step.action, at)) m_open.push_back({way.step + 1, std::move(way.kept)});
      break;
    case Action::Accept:
    case Action::Character:
    case Action::Any:
    case Action::Set:
      ways.push_back(std::move(way));
      break;
  }
}

bool ExpressionRun::takes(const Step& step, char32_t character) const {
  if (step.action == Action::Character) return step.character == character;
  if (step.action == Action::Any) return character != '\n';
  return m_expression.m_sets[step.target].holds(character);
}

void ExpressionRun::advance(char32_t character, std::size_t next) {
  m_nextWays.clear();
  for (Way& way : m_ways) {
    if (accepts(way)) {
      // A match of nothing is none, and ends no other way.
      if (way.kept[0] == way.kept[1]) continue;
      m_best = std::move(way.kept);
      break;
    }
    if (takes(m_expression.m_steps[way.step], character)) follow(m_nextWays, way.step + 1, way.kept, next);
  }
  std::swap(m_ways, m_nextWays);
}

ExpressionMatch ExpressionRun::matchOf(const Kept& kept) const {
  ExpressionMatch match{{kept[0], kept[1] - kept[0]}, {}};
  for (std::size_t group = 1; group <= m_expression.m_groups; ++group) {
    const std::size_t begin = kept[2 * group];
    const std::size_t end = kept[2 * group + 1];
    const bool tookPart = begin != kNever && end != kNever;
    match.groups.push_back(tookPart ? std::optional(TextRange{begin, end - begin}) : std::nullopt);
  }
  return match;
}

std::optional<ExpressionMatch> ExpressionRun::find(std::size_t from) {
  constexpr char32_t kEnd = 0x110000;  // taken by no step
  std::size_t at = from;
  const auto mayBeginAt = [this](std::size_t place) {
    return m_expression.m_first[static_cast<unsigned char>(m_text[place])];
  };
  while (true) {
    if (m_ways.empty() && m_best) break;
    while (m_ways.empty() && at < m_text.size() && !mayBeginAt(at)) ++at;
    if (at == m_text.size()) {
      advance(kEnd, at);
      break;
    }
    if (!m_best && mayBeginAt(at)) follow(m_ways, 0, nothingKept(), at);
    std::string_view rest = m_text.substr(at);
    const char32_t character = takeCodePoint(rest);
    at = m_text.size() - rest.size();
    advance(character, at);
  }
  if (!m_best) return std::nullopt;
  return matchOf(*m_best);
}

Result<Expression> Expression::of(std::string_view pattern, bool foldsCase) {
  const Result<ExpressionTree> tree = readExpression(pattern, foldsCase);
  if (!tree) return tree.error();
  return ExpressionBuilder().build(tree.value());
}

std::optional<ExpressionMatch> Expression::find(std::string_view text, std::size_t from) const {
  if (from > text.size() || text.find(m_required, from) == std::string_view::npos) return std::nullopt;
  return ExpressionRun(*this, text).find(from);
}

}  // namespace glossmill
