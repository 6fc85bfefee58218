#include "cli/WritingOptions.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>

#include "cli/DisplayText.h"
#include "cli/TypedCommand.h"
#include "host/Paths.h"

namespace glossmill {

std::string allowanceFor(SaveRefusal::Kind kind) {
  switch (kind) {
    case SaveRefusal::Kind::Incomplete:
      return "incomplete";
    case SaveRefusal::Kind::Outside:
      return "outside";
    case SaveRefusal::Kind::Changed:
      return "changed";
    case SaveRefusal::Kind::NoCopy:
      return "no-copy";
    case SaveRefusal::Kind::Busy:
    case SaveRefusal::Kind::Unfinished:
    case SaveRefusal::Kind::Dropped:
      break;
  }
  return {};
}

bool WritingOptions::allows(const std::string& what) const {
  return std::find(allowed.begin(), allowed.end(), what) != allowed.end();
}

SaveAllowance WritingOptions::allowance() const {
  return {allows("incomplete"), allows("outside"), allows("changed"), allows("no-copy")};
}

void addWritingOptions(CLI::App& command, WritingOptions& options) {
  addDryRun(command, options.dryRun);
  addFlag(command, "--json", options.json, "Print what was written as JSON");
  command
      .add_option("--allow", options.allowed,
                  "Write all the same: incomplete, outside, changed or no-copy; may be repeated")
      ->allow_extra_args(false)
      ->check(CLI::IsMember({"incomplete", "outside", "changed", "no-copy"}))
      ->option_text("WHAT");
  command.add_option("--max-dropped", options.maxDropped, "Write nothing if more entries would not be written again")
      ->option_text("N");
  command.add_option("--wait", options.waitSeconds, "How long to wait for another program that writes; 10 s")
      ->check(CLI::NonNegativeNumber)
      ->option_text("SECONDS");
}

ExitCode takeLock(ProjectLock& lock, const FileUrl& project, const WritingOptions& options, Console& console) {
  const std::chrono::duration<double> patience(options.waitSeconds);
  const auto held = lock.acquire(std::chrono::duration_cast<std::chrono::steady_clock::duration>(patience));
  if (!held) {
    console.error("cannot lock " + inQuotes(project.path()) + ": " + held.error().sentence);
    return ExitCode::Unusable;
  }
  if (!held.value()) return ExitCode::Fine;
  const std::string who = held.value()->by ? "process " + std::to_string(*held.value()->by) : "another process";
  console.error(inQuotes(project.path()) + " is being written by " + who + "; nothing was done");
  return ExitCode::Unusable;
}

void explainRefusal(const SaveRefusal& refusal, const FileUrl& project, Console& console) {
  if (refusal.kind == SaveRefusal::Kind::Dropped) {
    return console.error("nothing was written: " + refusal.places.front().sentence +
                         ", more than --max-dropped allows");
  }
  for (const SaveRefusal::Place& place : refusal.places) {
    console.error("not written: " + inQuotes(shownPath(project, place.file)) + ": " + place.sentence);
  }
  const std::string allowance = allowanceFor(refusal.kind);
  console.error("nothing was written" + (allowance.empty() ? "" : "; to write all the same: --allow " + allowance));
}

}  // namespace glossmill
