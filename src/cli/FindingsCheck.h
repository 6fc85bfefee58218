#pragma once

#include <string>
#include <vector>

#include "cli/ProjectSession.h"
#include "model/Language.h"

namespace glossmill {

/// What somebody asks of the checks. Empty texts and lists: nothing was said.
struct FindingsOptions {
  std::vector<std::string> checks;  ///< names
  std::string failOn;               ///< name of a severity
  std::string format;               ///< "text", "json", "sarif", "junit" or "github"
  std::string output;               ///< a file, "-" for standard output
  std::string baseline;             ///< a file of findings that are known
  std::string writeBaseline;        ///< the same, to be written

  bool saysSomething() const {
    return !(checks.empty() && failOn.empty() && format.empty() && output.empty() && baseline.empty() &&
             writeBaseline.empty());
  }
};

/// Looks for all that the checks know in these languages of the open project, and tells of it as was asked for.
/// Findings of other tables are left out; no ids mean all tables.
ExitCode checkFindings(ProjectSession& session, const LanguageArray& languages, const std::vector<std::string>& tables,
                       const FindingsOptions& options);

}  // namespace glossmill
