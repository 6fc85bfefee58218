#pragma once

#include <functional>
#include <string>
#include <vector>

#include "model/Problem.h"
#include "model/ProjectRules.h"
#include "xcode/CallList.h"
#include "xcode/MemberFiles.h"
#include "xcode/WholeTexts.h"

namespace glossmill {

/// What the sources of a project hold.
struct ReadSources {
  CallList calls;
  WholeTexts texts;
};

/// Reads the sources in their order, the headers once before: their macros are known in all sources of the C family. A
/// cancel ends it early.
ReadSources readSources(const std::vector<MemberFile>& sources, const std::vector<Routine>& own, const ScanInput& input,
                        const std::function<void(Problem)>& report);

/// The text of a file by its mark, as UTF-8, or as the project says.
Result<std::string> readMemberText(const MemberFile& file, FileReading& files);

}  // namespace glossmill
