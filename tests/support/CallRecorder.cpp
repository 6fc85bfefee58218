#include "support/CallRecorder.h"

#include <algorithm>

namespace glossmill {

namespace {

constexpr std::size_t kLinesAround = 3;

std::string onOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) line += c == '\n' ? std::string("\\n") : std::string(1, c);
  return line;
}

void show(std::string& text, char mark, const Lines& lines, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < std::min(to, lines.size()); ++i) text += std::string(1, mark) + " " + lines[i] + "\n";
}

}  // namespace

CallRecorder::~CallRecorder() {
  for (const Awaited& awaited : m_awaited) ADD_FAILURE() << "this call never came: " << awaited.line;
}

void CallRecorder::add(std::string_view subject, std::string_view what) {
  if (beforeLine && (!isMainThread || isMainThread()) && !m_isBeforeLine) {
    m_isBeforeLine = true;
    beforeLine();
    m_isBeforeLine = false;
  }
  append(onOneLine(std::string(subject) + ": " + std::string(what)));
}

void CallRecorder::addOnMainThread(std::string_view subject, std::string_view what) {
  EXPECT_TRUE(!isMainThread || isMainThread()) << subject << ": " << what << ", but not on the main thread";
  add(subject, what);
}

void CallRecorder::append(const std::string& line) {
  {
    const std::lock_guard lock(m_mutex);
    m_lines.push_back(line);
  }
  if (const std::function<void()> action = takeAction(line)) action();
}

std::function<void()> CallRecorder::takeAction(const std::string& line) {
  const std::lock_guard lock(m_mutex);
  const auto found = std::find_if(m_awaited.begin(), m_awaited.end(),
                                  [&line](const Awaited& awaited) { return awaited.line == line; });
  if (found == m_awaited.end()) return nullptr;
  std::function<void()> action = std::move(found->action);
  m_awaited.erase(found);
  return action;
}

void CallRecorder::when(std::string_view line, std::function<void()> action) {
  const std::lock_guard lock(m_mutex);
  m_awaited.push_back({std::string(line), std::move(action)});
}

void CallRecorder::clear() {
  const std::lock_guard lock(m_mutex);
  m_lines.clear();
}

Lines CallRecorder::lines() {
  const std::lock_guard lock(m_mutex);
  return m_lines;
}

Lines CallRecorder::linesOf(const Starts& starts) {
  Lines chosen = lines();
  std::erase_if(chosen, [&starts](const std::string& line) {
    return std::none_of(starts.begin(), starts.end(),
                        [&line](const std::string& start) { return line.starts_with(start); });
  });
  return chosen;
}

Lines joined(std::initializer_list<Lines> parts) {
  Lines lines;
  for (const Lines& part : parts) lines.insert(lines.end(), part.begin(), part.end());
  return lines;
}

testing::AssertionResult sameLines(const Lines& lines, const Lines& expected) {
  if (lines == expected) return testing::AssertionSuccess();
  const auto [line, other] = std::mismatch(lines.begin(), lines.end(), expected.begin(), expected.end());
  const auto same = static_cast<std::size_t>(line - lines.begin());
  const auto [lastLine, lastOther] = std::mismatch(lines.rbegin(), std::make_reverse_iterator(line), expected.rbegin(),
                                                   std::make_reverse_iterator(other));
  const auto end = static_cast<std::size_t>(lastLine.base() - lines.begin());
  const auto expectedEnd = static_cast<std::size_t>(lastOther.base() - expected.begin());
  std::string text = "line " + std::to_string(same + 1) + ", expected (-) and seen (+):\n";
  show(text, ' ', lines, same - std::min(same, kLinesAround), same);
  show(text, '-', expected, same, expectedEnd);
  show(text, '+', lines, same, end);
  show(text, ' ', lines, end, end + kLinesAround);
  return testing::AssertionFailure() << text;
}

}  // namespace glossmill
