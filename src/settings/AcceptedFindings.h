#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "checks/Acceptance.h"
#include "platform/Files.h"

namespace glossmill {

/// The file in a project's directory that says which findings somebody has accepted. docs/project-settings.md.
inline constexpr std::string_view kAcceptedFindingsFile = ".glossmill-accepted.json";

/// An error is one sentence with line and, where one is at fault, key.
Result<std::vector<Acceptance>> parseAcceptances(std::string_view text);

/// The text of the file: sorted, each once.
std::string acceptancesText(std::vector<Acceptance> acceptances);

/// What the project in this directory has accepted; nothing where there is no file.
Result<std::vector<Acceptance>> readAcceptances(FileReading& files, const FileUrl& directory);

/// What is to become of a project's acceptances.
struct AcceptanceChange {
  std::vector<Acceptance> add;     ///< in the place of those for other texts of the same
  std::vector<Acceptance> remove;  ///< as they stand
};

/// The way back.
AcceptanceChange reversed(const AcceptanceChange& change);

std::vector<Acceptance> changedAcceptances(std::vector<Acceptance> acceptances, const AcceptanceChange& change);

/// Reads the file anew, changes it, and writes it as other files are: whole or not at all. What it says afterwards.
/// Main thread.
Result<std::vector<Acceptance>> changeAcceptances(Files& files, const FileUrl& directory,
                                                  const AcceptanceChange& change);

}  // namespace glossmill
