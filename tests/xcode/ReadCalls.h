#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "xcode/AppleRoutines.h"
#include "xcode/CallReader.h"

namespace glossmill {

inline std::string shown(const TextPlace& place) {
  return std::to_string(place.line) + ":" + std::to_string(place.column);
}

/// `line:column key`, then what else there is: [table], =default value, #comment.
inline std::string shown(const FoundCall& call) {
  std::string text = shown(call.place) + " " + call.key;
  if (call.table != kLocalizable) text += " [" + call.table + "]";
  if (call.defaultValue) text += " =" + *call.defaultValue;
  if (call.comment) text += " #" + *call.comment;
  return text;
}

/// `line:column kind: sentence`.
inline std::string shown(const SourceProblem& problem) {
  return shown(problem.place) + " " + std::string(nameOf(problem.kind)) + ": " + problem.text;
}

/// All calls, then all problems.
inline std::vector<std::string> shown(const SourceCalls& found) {
  std::vector<std::string> lines;
  for (const FoundCall& call : found.calls) lines.push_back(shown(call));
  for (const SourceProblem& problem : found.problems) lines.push_back(shown(problem));
  return lines;
}

/// A source and what is found in it.
struct CallRow {
  std::string source;
  std::vector<std::string> found;
};

inline void expectCallsInC(const std::vector<CallRow>& rows, const RoutineTable& routines = routinesInC({}, {})) {
  for (const CallRow& row : rows) EXPECT_EQ(shown(readCallsInC(row.source, routines)), row.found) << row.source;
}

inline void expectCallsInSwift(const std::vector<CallRow>& rows, const RoutineTable& routines = routinesInSwift({})) {
  for (const CallRow& row : rows) EXPECT_EQ(shown(readCallsInSwift(row.source, routines)), row.found) << row.source;
}

}  // namespace glossmill
