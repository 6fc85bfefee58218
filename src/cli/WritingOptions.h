#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/ExitCode.h"
#include "host/PosixFiles.h"
#include "host/PosixSaveDisk.h"
#include "safety/ProjectLock.h"
#include "safety/SaveTransaction.h"

namespace CLI {
class App;
}

namespace glossmill {

/// What a command that writes is told about doing so.
struct WritingOptions {
  std::vector<std::string> allowed;  ///< names of what would be refused otherwise
  double waitSeconds = 10;           ///< for another program that writes the project
  bool dryRun = false;
  bool json = false;
  std::optional<std::uint64_t> maxDropped = {};  ///< entries

  bool allows(const std::string& what) const;
  SaveAllowance allowance() const;
};

/// Adds --dry-run, --json, --allow, --max-dropped and --wait.
void addWritingOptions(CLI::App& command, WritingOptions& options);

/// Takes the lock on the project, waiting as long as was asked for; Unusable, explained on the console, when somebody
/// else keeps it.
ExitCode takeLock(ProjectLock& lock, const FileUrl& project, const WritingOptions& options, Console& console);

/// By which name --allow lets a command go on; empty for what it does not.
std::string allowanceFor(SaveRefusal::Kind kind);

/// The line for a save that was refused, one for each place, and how to go on all the same.
void explainRefusal(const SaveRefusal& refusal, const FileUrl& project, Console& console);

}  // namespace glossmill
