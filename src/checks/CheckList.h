#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "checks/Finding.h"

namespace glossmill {

/// A check as people know it.
struct CheckEntry {
  Check check;
  std::string_view name;  ///< on the command line and in a project's settings
  Severity severity;      ///< by default; a finding may be milder
  std::string_view sentence;
  std::string_view example;
};

/// All checks, in the order of Check.
std::span<const CheckEntry> checkList();
const CheckEntry& entryOf(Check check);
std::optional<Check> checkNamed(std::string_view name);

std::string_view nameOf(Severity severity);
std::optional<Severity> severityNamed(std::string_view name);

/// What is wrong, in English: the key of a text whose places take what the finding is about and what it is compared
/// with.
std::string_view sentenceOf(FindingKind kind);

}  // namespace glossmill
