#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "checks/PlacedFinding.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// What a baseline had to do with the findings of a run.
struct BaselineOutcome {
  std::size_t known = 0;          ///< findings that it holds and that are not reported
  std::vector<std::string> gone;  ///< lines of it whose findings were looked for and no longer occur
};

/// What all formats tell. The paths in them begin at `root`, and those of findings stand below `prefix` in it.
struct CheckReport {
  std::vector<PlacedFinding> findings;  ///< in the order in which they are told
  std::vector<std::string> languages;   ///< codes of those that were checked
  std::vector<Check> checks;            ///< that were made
  Severity failsFrom = Severity::Error;
  FileUrl root;        ///< a directory
  std::string prefix;  ///< the project's directory in it, with a slash behind it; empty where they are the same
  std::optional<BaselineOutcome> baseline = {};
};

bool isFailure(const CheckReport& report, const PlacedFinding& finding);
bool hasFailure(const CheckReport& report);
std::size_t countOf(const CheckReport& report, Severity severity);

/// Where a finding stands, from the root on; the whole path of what lies outside of the project. Without a file the
/// project's directory, "." where that is the root.
std::string reportedPath(const CheckReport& report, const PlacedFinding& finding);

/// "key", "source text" and "translation" of a finding, in lines, as far as they help; each line begins with `indent`.
/// Line breaks and tabs are spelled as backslash and letter.
struct DetailLine {
  std::string name;  ///< "key", "source", or the code of the language
  std::string text;  ///< whole, as it is
  TextRange marked;  ///< what of it is at fault; empty for nothing
  bool isThere = true;
};
std::vector<DetailLine> detailsOf(const PlacedFinding& finding);

/// For people: in quotes, on one line, without what a terminal could take for a command.
std::string shownText(std::string_view text);

/// The sentence, and each detail on a line of its own, without a final line feed.
std::string plainText(const PlacedFinding& finding);

}  // namespace glossmill
