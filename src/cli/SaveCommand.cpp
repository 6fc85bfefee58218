#include "cli/SaveCommand.h"

#include <memory>

#include "cli/ProjectSession.h"

namespace glossmill {

namespace {

struct SaveOptions {
  ProjectChoice project;
  WritingOptions writing;
};

ExitCode save(const SaveOptions& options, Console& console) {
  ProjectSession session(console, {.writing = &options.writing, .command = "save"});
  const ExitCode opened = session.openPackage(options.project);
  if (opened != ExitCode::Fine) return opened;
  return session.saveProject();
}

}  // namespace

void addSaveCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<SaveOptions>();
  CLI::App& command =
      addCommand(program, typed, {"save", "Rewrite the strings file of every language", "~/Projects/Harbour --dry-run"},
                 [options](Console& console) { return save(*options, console); });
  addProject(command, options->project);
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
