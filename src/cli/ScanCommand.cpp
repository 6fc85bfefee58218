#include "cli/ScanCommand.h"

#include <memory>

#include "cli/LanguageTable.h"
#include "cli/LeftOut.h"
#include "cli/Paths.h"
#include "cli/ProjectJson.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"

namespace glossmill {

namespace {

struct ScanOptions {
  std::string directory;
  bool json = false;
};

std::string projectTable(const ProjectSession& session) {
  const ProjectWindowController& project = session.project();
  const std::optional<FileUrl>& package = project.projectPackage();
  TextTable table({TextTable::Align::Left, TextTable::Align::Left});
  table.addRow(
      {{"Package", Paint::Heading}, {package ? std::string(shownPath(project.projectDirectory(), *package)) : "none"}});
  table.addRow({{"Source files", Paint::Heading}, {std::to_string(project.fileList().size())}});
  table.addRow({{"Keys", Paint::Heading}, {std::to_string(project.stringList().size())}});
  return table.text(session.console());
}

void printSummary(const ProjectSession& session) {
  std::string text = projectTable(session);
  const LanguageArray& languages = *session.project().languagesList();
  if (!languages.empty()) text += "\n" + languageTable(session, languages);
  text += leftOutSummary(session);
  if (session.console().isVerbose()) text += leftOutTable(session);
  session.console().data(text);
}

ExitCode scan(const ScanOptions& options, Console& console) {
  ProjectSession session(console, {.keepsLogs = options.json});
  const ExitCode opened = session.open(options.directory);
  if (opened != ExitCode::Fine) return opened;
  if (options.json) {
    printProjectJson(session);
  } else {
    printSummary(session);
  }
  return ExitCode::Fine;
}

}  // namespace

void addScanCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<ScanOptions>();
  CLI::App& command = addCommand(
      program, typed, {"scan", "Show what a project holds: its languages, keys and gaps", "~/Projects/Harbour"},
      [options](Console& console) { return scan(*options, console); });
  addDirectory(command, options->directory);
  addFlag(command, "--json", options->json, "Print everything that was found as JSON");
}

}  // namespace glossmill
