#include "cli/ImportCommand.h"

#include <memory>

#include "cli/DisplayText.h"
#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"
#include "cli/TextTable.h"
#include "host/Paths.h"

namespace glossmill {

namespace {

struct ImportOptions {
  ProjectChoice project;
  std::vector<std::string> tables;
  std::string language;
  std::string file;
  WritingOptions writing;
};

void addCounts(const ImportReport& counts, ProjectSession& session) {
  TextTable table({TextTable::Align::Left, TextTable::Align::Right});
  table.addRow({{"new entries"}, {std::to_string(counts.added)}});
  table.addRow({{"changed entries"}, {std::to_string(counts.changed)}});
  table.addRow({{"unchanged entries"}, {std::to_string(counts.unchanged)}});
  table.addRow({{"entries unknown to the project"}, {std::to_string(counts.unknown)}});
  session.addCounts(table.text(session.console()) + "\n", {{"newEntries", counts.added},
                                                           {"changedEntries", counts.changed},
                                                           {"unchangedEntries", counts.unchanged},
                                                           {"unknownEntries", counts.unknown}});
}

ExitCode unreadable(const ImportOptions& options, const Error& error, Console& console) {
  console.error("cannot read " + inQuotes(options.file) + ": " + error.sentence);
  return ExitCode::Unusable;
}

ExitCode importLanguage(const ImportOptions& options, Console& console) {
  ProjectSession session(console, {.writing = &options.writing, .command = "import --language " + options.language});
  const OpenedLanguage opened = openLanguage(session, options.project, options.language, options.tables);
  if (opened.code != ExitCode::Fine) return opened.code;
  const FileUrl file = absoluteUrl(options.file);
  if (file.empty()) return unreadable(options, {"The file does not exist."}, console);
  session.project().importLanguageFromFile(opened.language, file);
  const ExitCode finished = session.finishJob();
  if (finished != ExitCode::Fine) return finished;
  const ImportReport& report = session.project().importReport();
  if (report.unread) return unreadable(options, *report.unread, console);
  addCounts(report, session);
  return session.saveProject();
}

}  // namespace

void addImportCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<ImportOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"import", "Take over the translations of a filled-in text file, and save",
                                  "~/Projects/Harbour --language de Harbour_de.txt"},
                                 [options](Console& console) { return importLanguage(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addRequired(command, "FILE", options->file, "Text file that was exported and filled in");
  addLanguage(command, options->language);
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
