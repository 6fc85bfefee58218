#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

using Lines = std::vector<std::string>;

/// The calls that reached the recording parts of a host, in order, each as one line "subject: what" with \n for a line
/// feed. A line is added before the call itself is passed on. Any thread.
class CallRecorder {
 public:
  using Starts = std::vector<std::string>;

  CallRecorder() = default;
  CallRecorder(const CallRecorder&) = delete;
  CallRecorder& operator=(const CallRecorder&) = delete;
  ~CallRecorder();

  void add(std::string_view subject, std::string_view what);
  /// The same for what only the main thread may do; the test fails when another thread does it.
  void addOnMainThread(std::string_view subject, std::string_view what);
  void clear();

  Lines lines();
  /// Those that begin with one of these.
  Lines linesOf(const Starts& starts);

  /// Does something, once, when this very line has been added, before the call is passed on. The test fails when the
  /// line never comes.
  void when(std::string_view line, std::function<void()> action);

  /// Called on the main thread before each of its lines is added: the place to add lines about what has changed since.
  std::function<void()> beforeLine;
  /// Set by the host; until then every thread is taken for the main thread.
  std::function<bool()> isMainThread;

 private:
  struct Awaited {
    std::string line;
    std::function<void()> action;
  };

  void append(const std::string& line);
  std::function<void()> takeAction(const std::string& line);

  std::mutex m_mutex;
  Lines m_lines;
  std::vector<Awaited> m_awaited;
  bool m_isBeforeLine = false;  ///< main thread only
};

/// The parts one after the other.
Lines joined(std::initializer_list<Lines> parts);

/// Whether the lines are these; if not, the lines that differ with a few around them.
testing::AssertionResult sameLines(const Lines& lines, const Lines& expected);

}  // namespace glossmill
