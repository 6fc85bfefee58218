#include "cli/CheckCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "checks/CheckList.h"
#include "cli/DisplayText.h"
#include "cli/FindingsCheck.h"
#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"
#include "cli/TextTable.h"

namespace glossmill {

namespace {

struct CheckOptions {
  ProjectChoice project;
  std::vector<std::string> tables;
  std::vector<std::string> languages;
  FindingsOptions findings;
};

LanguageArray incompleteOf(const ProjectSession& session, const LanguageArray& languages) {
  LanguageArray incomplete;
  for (const std::shared_ptr<Language>& language : languages) {
    if (session.project().missingTranslations(*language) != 0) incomplete.push_back(language);
  }
  return incomplete;
}

std::string incompleteText(const ProjectSession& session, const LanguageArray& incomplete) {
  TextTable table({TextTable::Align::Left, TextTable::Align::Left, TextTable::Align::Right});
  for (const std::shared_ptr<Language>& language : incomplete) {
    table.addRow({{language->iso639()},
                  {language->description().value_or("-")},
                  {session.project().languageStatusString(*language), Paint::Gap}});
  }
  return table.text(session.console());
}

std::string closingText(std::size_t incomplete, std::size_t all) {
  const std::size_t count = incomplete == 0 ? all : incomplete;
  return counted(count, "language") + (count == 1 ? " is" : " are") +
         (incomplete == 0 ? " complete." : " not complete.");
}

ExitCode checkCompleteness(const ProjectSession& session, const LanguageArray& languages) {
  const LanguageArray incomplete = incompleteOf(session, languages);
  session.console().data(incompleteText(session, incomplete));
  session.console().message(closingText(incomplete.size(), languages.size()));
  return incomplete.empty() ? ExitCode::Fine : ExitCode::CheckFailed;
}

ExitCode check(const CheckOptions& options, Console& console) {
  ProjectSession session(console, {});
  const ExitCode opened = session.openPackage(options.project, ExitCode::CheckFailed);
  if (opened != ExitCode::Fine) return opened;
  const std::optional<LanguageArray> languages = chosenLanguages(session, options.languages);
  if (!languages || !keepTables(session, options.tables)) return ExitCode::WrongUsage;
  if (!options.findings.saysSomething() && !session.checks().areNamed) return checkCompleteness(session, *languages);
  return checkFindings(session, *languages, options.tables, options.findings);
}

std::vector<std::string> checkNames() {
  std::vector<std::string> names;
  for (const CheckEntry& entry : checkList()) names.emplace_back(entry.name);
  return names;
}

void addFindingsOptions(CLI::App& command, FindingsOptions& options) {
  command.add_option("--checks", options.checks, "Which checks are made: their names, with commas between")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::IsMember(checkNames()))
      ->option_text("NAMES");
  command.add_option("--fail-on", options.failOn, "From which severity on a finding fails: error, warning or info")
      ->check(CLI::IsMember({"error", "warning", "info"}))
      ->option_text("SEVERITY");
  CLI::Option* const format =
      command.add_option("--format", options.format, "How findings are told: text, json, sarif, junit or github")
          ->check(CLI::IsMember({"text", "json", "sarif", "junit", "github"}))
          ->option_text("FORMAT");
  CLI::Option* const output =
      command.add_option("-o,--output", options.output, "Where to: a file, - for standard output")->option_text("FILE");
  CLI::Option* const baseline =
      command.add_option("--baseline", options.baseline, "Leave out the findings that this file knows")
          ->option_text("FILE");
  command.add_option("--write-baseline", options.writeBaseline, "Write all findings to such a file, and tell of none")
      ->excludes(format)
      ->excludes(output)
      ->excludes(baseline)
      ->option_text("FILE");
}

}  // namespace

void addCheckCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<CheckOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"check", "Find what is missing or wrong in languages, for build servers",
                                  "~/Projects/Harbour --fail-on warning"},
                                 [options](Console& console) { return check(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addLanguages(command, options->languages);
  addFindingsOptions(command, options->findings);
}

}  // namespace glossmill
