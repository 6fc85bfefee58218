#include "cli/ExportCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/DisplayText.h"
#include "cli/FormatChoice.h"
#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"
#include "host/Paths.h"

namespace glossmill {

namespace {

constexpr const char* kStandardOutput = "-";

struct ExportOptions {
  ProjectChoice project;
  std::vector<std::string> tables;
  std::vector<std::string> languages;
  std::string output;
  std::string format;
  bool hasMark = false;
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

ExitCode wrongLanguages(const std::string& sentence, Console& console) {
  console.error(sentence);
  console.message("Try: glossmill-cli export --help");
  return ExitCode::WrongUsage;
}

/// Whether the format can take so many languages, and go where it is to go.
ExitCode checkFormat(const ExportOptions& options, const ExchangeFormat& format, Console& console) {
  const bool isOne = !format.carriesSeveralLanguages;
  if (isOne && options.languages.empty()) return wrongLanguages("--language is required", console);
  if (isOne && options.languages.size() > 1) {
    return wrongLanguages("the format " + std::string(format.name) + " takes one language", console);
  }
  if (!format.isDirectory || options.output != kStandardOutput) return ExitCode::Fine;
  console.error("the format " + std::string(format.name) + " is a directory; it cannot be printed");
  return ExitCode::WrongUsage;
}

/// The project, with the languages that were asked for, or all of them.
std::optional<LanguageArray> openFor(ProjectSession& session, const ExportOptions& options, ExitCode& code) {
  code = session.openPackage(options.project);
  if (code != ExitCode::Fine) return std::nullopt;
  std::optional<LanguageArray> languages = chosenLanguages(session, options.languages);
  if (!languages || !keepTables(session, options.tables)) code = ExitCode::WrongUsage;
  return code == ExitCode::Fine ? languages : std::nullopt;
}

void mentionLeftOut(const ProjectSession& session) {
  for (const LeftOutUnit& unit : session.project().exportReport().leftOut) {
    session.console().note("left out: " + inQuotes(unit.key) + (unit.table.empty() ? "" : " of " + unit.table) + ": " +
                           unit.sentence);
  }
}

ExitCode exportLanguage(const ExportOptions& options, Console& console) {
  const ExitCode fits = checkFormat(options, chosenFormat(options.format, absoluteUrl(options.output)), console);
  if (fits != ExitCode::Fine) return fits;
  ProjectSession session(console, {.dryRun = options.dryRun});
  ExitCode code = ExitCode::Fine;
  const std::optional<LanguageArray> languages = openFor(session, options, code);
  if (!languages) return code;
  const FileUrl target = exportTarget(session, options);
  if (target.empty()) {
    console.error("the name of the output file is empty");
    return ExitCode::Unusable;
  }
  if (languages->empty()) return wrongLanguages("the project has no language", console);
  session.project().exportLanguages({.languages = *languages,
                                     .file = target,
                                     .scope = options.scope(),
                                     .format = options.format,
                                     .hasMark = options.hasMark});
  const ExitCode finished = session.finishJob();
  if (finished != ExitCode::Fine) return finished;
  mentionLeftOut(session);
  session.reportFiles();
  return session.files().lastFailure() ? ExitCode::Unusable : ExitCode::Fine;
}

}  // namespace

void addExportCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<ExportOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"export", "Write a language to a file for a translator",
                                  "~/Projects/Harbour --language de --untranslated --output Harbour_de.txt"},
                                 [options](Console& console) { return exportLanguage(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  command
      .add_option("-l,--language", options->languages,
                  "Code of the language, as in its .lproj directory; csv and tsv take several, or all without it")
      ->allow_extra_args(false)
      ->option_text("CODE");
  addFormat(command, options->format);
  addFlag(command, "--bom", options->hasMark, "Begin with a byte-order mark, for spreadsheets: csv, tsv");
  addFlag(command, "-u,--untranslated", options->untranslated, "Only strings that have no translation");
  addRequired(command, "-o,--output", options->output, "File to write, - for standard output", "FILE");
  addDryRun(command, options->dryRun);
}

}  // namespace glossmill
