#pragma once

#include <map>
#include <string>
#include <vector>

#include "project/FindingsRun.h"

namespace glossmill {

class ProjectWindowController;

/// The language that is translated from: what the settings say, else the project file. Main thread.
LanguageCode sourceLanguageOf(const ProjectWindowController& project, const CheckSettings& settings);

/// What the checks are to know of the open project: quick, since its texts stay where they are. Main thread.
CheckedProject checkedProject(const ProjectWindowController& project, const CheckSettings& settings);

/// All findings of a project, but for those that the settings leave out: by file, line, column, language, check and
/// key, in this order; texts by their bytes, and what has no file first. Files are read again for their places. Any
/// thread.
std::vector<PlacedFinding> projectFindings(const CheckedProject& project, const CheckSettings& settings,
                                           const FindingsWish& wish, FileReading& files);

struct FindingCounts {
  std::size_t errors = 0;
  std::size_t warnings = 0;
  std::size_t infos = 0;

  bool operator==(const FindingCounts&) const = default;
};

/// How many there are of each language, by its code; the empty code has those of no language.
std::map<std::string, FindingCounts> countsByLanguage(const std::vector<PlacedFinding>& findings);

}  // namespace glossmill
