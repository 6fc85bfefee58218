#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xcode/PlaceCounter.h"
#include "xcode/Routine.h"

namespace glossmill {

inline constexpr std::string_view kLocalizable = "Localizable";

/// A text that a source looks up.
struct FoundCall {
  std::size_t offset = 0;  ///< of the routine's name, in bytes
  TextPlace place;         ///< the same
  std::string key;
  std::string table;
  std::optional<std::string> defaultValue;  ///< not the empty one, which stands for none
  std::optional<std::string> comment;

  bool operator==(const FoundCall&) const = default;
};

enum class CallProblem {
  KeyMissing,
  KeyNotLiteral,
  TableNotLiteral,
  Interpolation,     ///< in a key, a table or a default value
  MalformedLiteral,  ///< of a key, a table or a default value
  NotClosed,
};

/// The word that stands for a kind of problem in files that programs read.
std::string_view nameOf(CallProblem kind);

/// Why a call was not taken, or was taken without its default value.
struct SourceProblem {
  std::size_t offset = 0;  ///< of the routine's name, in bytes
  TextPlace place;         ///< the same
  CallProblem kind = CallProblem::KeyNotLiteral;
  std::string text;  ///< a sentence for a person

  bool operator==(const SourceProblem&) const = default;
};

/// What one source file holds, in the order of its calls.
struct SourceCalls {
  std::vector<FoundCall> calls;
  std::vector<SourceProblem> problems;

  bool operator==(const SourceCalls&) const = default;
};

/// Reads a source of C, C++ or Objective-C, every branch of it. Macros of its own count beside `routines`. Linear in
/// the length of the text; one that holds no name of a routine is passed at the speed of a plain search.
SourceCalls readCallsInC(std::string_view text, const RoutineTable& routines);

/// The same for Swift, which has no macros.
SourceCalls readCallsInSwift(std::string_view text, const RoutineTable& routines);

}  // namespace glossmill
