#include "cli/ImportCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/DisplayText.h"
#include "cli/FormatChoice.h"
#include "cli/ImportListing.h"
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
  std::string format;
  std::string only;
  bool usesFuzzy = false;
  WritingOptions writing;

  ImportScope scope() const {
    if (only.empty()) return ImportScope::All;
    return only == "new" ? ImportScope::OnlyNew : ImportScope::OnlyChanged;
  }
  std::string command() const { return language.empty() ? "import" : "import --language " + language; }
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

ExitCode languageMissing(Console& console) {
  console.error("--language is required");
  console.message("Try: glossmill-cli import --help");
  return ExitCode::WrongUsage;
}

/// The project, with the language that was asked for, or without one.
OpenedLanguage openFor(ProjectSession& session, const ImportOptions& options) {
  if (!options.language.empty()) return openLanguage(session, options.project, options.language, options.tables);
  const ExitCode opened = session.openPackage(options.project);
  if (opened != ExitCode::Fine) return {opened, nullptr};
  return {keepTables(session, options.tables) ? ExitCode::Fine : ExitCode::WrongUsage, nullptr};
}

/// Says in detail what was done, or would be.
void addDetails(const ImportOptions& options, ProjectSession& session) {
  const ImportPlan& plan = session.project().importPlan();
  const RowChecks checks(session.project(), session.checks());
  mentionNotes(plan, options.file, options.language, session.console());
  if (options.writing.json) return session.addCounts("", importJson(plan, checks));
  if (!options.writing.dryRun) return mentionRejected(plan, session.console());
  const std::string listing = importListing(plan, checks, session.console());
  if (!listing.empty()) session.addCounts(listing + "\n", Json::object());
}

ExitCode importLanguage(const ImportOptions& options, Console& console) {
  const FileUrl file = absoluteUrl(options.file);
  // That text says nothing of its language, nor of what it is about to do unless it is asked for.
  const bool isPlain = isOwnText(chosenFormat(options.format, file));
  if (isPlain && options.language.empty()) return languageMissing(console);
  ProjectSession session(console, {.writing = &options.writing, .command = options.command()});
  const OpenedLanguage opened = openFor(session, options);
  if (opened.code != ExitCode::Fine) return opened.code;
  if (file.empty()) return unreadable(options, {"The file does not exist."}, console);
  session.project().importFile({.file = file,
                                .language = opened.language,
                                .format = options.format,
                                .scope = options.scope(),
                                .takesUnsure = options.usesFuzzy});
  const ExitCode finished = session.finishJob();
  if (finished != ExitCode::Fine) return finished;
  const ImportReport& report = session.project().importReport();
  if (report.unread) return unreadable(options, *report.unread, console);
  if (!isPlain || !options.format.empty() || !options.only.empty()) addDetails(options, session);
  addCounts(report, session);
  return session.saveProject();
}

}  // namespace

void addImportCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<ImportOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"import", "Take over the translations of a file that was filled in, and save",
                                  "~/Projects/Harbour --language de Harbour_de.txt"},
                                 [options](Console& console) { return importLanguage(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addRequired(command, "FILE", options->file, "File that was exported and filled in");
  command.add_option("-l,--language", options->language, "Code of the language; other formats than text may say it")
      ->option_text("CODE");
  addFormat(command, options->format);
  command.add_option("--only", options->only, "Take only what is new, or only what is changed: new, changed")
      ->check(CLI::IsMember({"new", "changed"}))
      ->option_text("WHAT");
  addFlag(command, "--use-fuzzy", options->usesFuzzy, "Take what is marked as unsure, too");
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
