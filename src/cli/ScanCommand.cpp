#include "cli/ScanCommand.h"

#include <memory>

#include "cli/LanguageTable.h"
#include "cli/LeftOut.h"
#include "cli/ProjectJson.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "host/Paths.h"

namespace glossmill {

namespace {

struct ScanOptions {
  ProjectChoice project;
  bool json = false;
};

void addTableRows(const ProjectWindowController& project, TextTable& table) {
  if (project.packages().size() > 1) {
    table.addRow({{"Other packages", Paint::Heading}, {std::to_string(project.packages().size() - 1)}});
  }
  table.addRow({{"Tables", Paint::Heading}, {std::to_string(project.tables().size())}});
  table.addRow({{"Problems", Paint::Heading}, {std::to_string(project.problems().size())}});
}

std::string projectTable(const ProjectSession& session) {
  const ProjectWindowController& project = session.project();
  const std::optional<FileUrl>& package = project.projectPackage();
  TextTable table({TextTable::Align::Left, TextTable::Align::Left});
  table.addRow(
      {{"Package", Paint::Heading}, {package ? std::string(shownPath(project.projectDirectory(), *package)) : "none"}});
  if (project.projectOptions().rules == RuleSet::Xcode) addTableRows(project, table);
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
  const ExitCode opened = session.open(options.project);
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
  addProject(command, options->project);
  addFlag(command, "--json", options->json, "Print everything that was found as JSON");
}

}  // namespace glossmill
