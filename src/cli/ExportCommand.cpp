#include "cli/ExportCommand.h"

#include <memory>

#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"
#include "host/Paths.h"

namespace glossmill {

namespace {

constexpr const char* kStandardOutput = "-";

struct ExportOptions {
  ProjectChoice project;
  std::vector<std::string> tables;
  std::string language;
  std::string output;
  bool untranslated = false;
  bool dryRun = false;

  ExportScope scope() const { return untranslated ? ExportScope::Untranslated : ExportScope::AllStrings; }
};

/// Where the text goes; a name of its own stands for standard output.
FileUrl exportTarget(ProjectSession& session, const ExportOptions& options) {
  if (options.output != kStandardOutput) return absoluteUrl(options.output);
  const FileUrl target(kStandardOutput);
  session.files().divert(target, [&console = session.console(), dryRun = options.dryRun](std::string_view text) {
    if (dryRun) {
      console.message("would be printed: " + std::to_string(text.size()) + " bytes");
    } else {
      console.foreignText(text);
    }
  });
  return target;
}

ExitCode exportLanguage(const ExportOptions& options, Console& console) {
  ProjectSession session(console, {.dryRun = options.dryRun});
  const OpenedLanguage opened = openLanguage(session, options.project, options.language, options.tables);
  if (opened.code != ExitCode::Fine) return opened.code;
  const FileUrl target = exportTarget(session, options);
  if (target.empty()) {
    console.error("the name of the output file is empty");
    return ExitCode::Unusable;
  }
  session.project().exportLanguageToFileAllStrings(opened.language, target, options.scope());
  const ExitCode finished = session.finishJob();
  if (finished != ExitCode::Fine) return finished;
  session.reportFiles();
  return session.files().lastFailure() ? ExitCode::Unusable : ExitCode::Fine;
}

}  // namespace

void addExportCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<ExportOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"export", "Write one language to a text file for a translator",
                                  "~/Projects/Harbour --language de --untranslated --output Harbour_de.txt"},
                                 [options](Console& console) { return exportLanguage(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addLanguage(command, options->language);
  addFlag(command, "-u,--untranslated", options->untranslated, "Only strings that have no translation");
  addRequired(command, "-o,--output", options->output, "File to write, - for standard output", "FILE");
  addDryRun(command, options->dryRun);
}

}  // namespace glossmill
