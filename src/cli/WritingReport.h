#pragma once

#include <vector>

#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/ReportingFiles.h"
#include "project/SaveReport.h"

namespace glossmill {

/// What a command wrote below a project, or would have written.
struct Writing {
  const FileUrl& project;
  const std::vector<WrittenFile>& files;  ///< beside those of the save
  const SaveReport& save;
  bool pretended = false;
};

/// Says why nothing was saved, which files have other names, and, to whoever wants no messages too, what was not
/// written again.
void printRefusalAndLosses(const Writing& writing, Console& console);

/// Prints what became of each file as JSON, behind the members of `counts`, and the above.
void printWritingJson(const Writing& writing, const Json& counts, Console& console);

/// Prints what became of each file, one a line, and the above.
void printWriting(const Writing& writing, Console& console);

}  // namespace glossmill
