#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "checks/Acceptance.h"

namespace glossmill {

/// Findings that are left out: those that fit all of what is said. An empty member says nothing. In key, language and
/// table `*` and `?` stand for other characters; the file is a pattern of PathGlobs.
struct IgnoredFindings {
  std::optional<Check> check;
  std::string key;
  std::string language;  ///< code
  std::string file;      ///< path from the project's directory
  std::string table;     ///< id

  bool operator==(const IgnoredFindings&) const = default;
};

/// What a project says of its checks.
struct CheckSettings {
  bool areNamed = false;                                ///< the project's own settings say something of checks
  std::map<Check, std::optional<Severity>> severities;  ///< in the place of the default; nothing: the check is off
  std::vector<IgnoredFindings> ignored;
  std::vector<std::string> keep;     ///< texts that stay as they are in every language; `*` and `?` stand for others
  std::vector<Acceptance> accepted;  ///< findings that somebody has looked at
  std::string sourceLanguage;        ///< code; empty: what the project file says

  bool operator==(const CheckSettings&) const = default;
};

}  // namespace glossmill
