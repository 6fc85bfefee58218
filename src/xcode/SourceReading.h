#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Problem.h"
#include "model/ProjectRules.h"
#include "platform/ReadBytes.h"
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
/// second thread helps where there is much to read; events and problems come in the order of the sources, on the thread
/// that asks. A cancel ends it early.
ReadSources readSources(const std::vector<MemberFile>& sources, const std::vector<Routine>& own, const ScanInput& input,
                        const std::function<void(Problem)>& report);

/// The text of a file by its mark, as UTF-8, or as the project says.
Result<std::string> readMemberText(const MemberFile& file, FileReading& files);
/// The same without a copy; valid until the buffer is used again, and while `decoded` stays as it is.
Result<std::string_view> readMemberText(const MemberFile& file, FileReading& files, FileBuffer& buffer,
                                        std::string& decoded);

}  // namespace glossmill
