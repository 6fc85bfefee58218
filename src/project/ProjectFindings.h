#pragma once

#include <functional>
#include <string>
#include <vector>

#include "checks/CheckSettings.h"
#include "checks/CheckedProject.h"
#include "checks/PlacedFinding.h"
#include "platform/CancelFlag.h"
#include "platform/Files.h"

namespace glossmill {

class ProjectWindowController;

/// Which findings are wanted. Empty lists: all that the settings do not turn off, and all languages.
struct FindingsWish {
  std::vector<Check> checks;            ///< these are on, whatever the settings say
  std::vector<LanguageCode> languages;  ///< findings about no language come along
};

/// What the checks are to know of the open project. Main thread.
CheckedProject checkedProject(const ProjectWindowController& project, const CheckSettings& settings);

/// All findings of a project, but for those that the settings leave out: by file, line, column, language, check and
/// key, in this order; texts by their bytes, and what has no file first. Files are read again for their places. Any
/// thread.
std::vector<PlacedFinding> projectFindings(const CheckedProject& project, const CheckSettings& settings,
                                           const FindingsWish& wish, FileReading& files);

}  // namespace glossmill
