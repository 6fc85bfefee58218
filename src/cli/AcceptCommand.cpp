#include "cli/AcceptCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "checks/CheckList.h"
#include "cli/DisplayText.h"
#include "cli/LanguageChoice.h"
#include "project/ProjectFindings.h"
#include "settings/AcceptedFindings.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

struct AcceptOptions {
  ProjectChoice project;
  std::string language;
  std::string table;
  std::vector<std::string> checks;
  std::string key;
  WritingOptions writing;
};

/// Nothing, explained on the console, when one of them is no check.
std::optional<std::vector<Check>> chosenChecks(const AcceptOptions& options, Console& console) {
  std::vector<Check> checks;
  for (const std::string& name : options.checks) {
    const std::optional<Check> check = checkNamed(name);
    if (!check) {
      console.error("there is no check " + inQuotes(name));
      return std::nullopt;
    }
    checks.push_back(*check);
  }
  return checks;
}

std::vector<PlacedFinding> findingsToAccept(ProjectSession& session, const AcceptOptions& options,
                                            const FindingsWish& wish) {
  const CheckedProject project = checkedProject(session.project(), session.checks());
  std::vector<PlacedFinding> findings = projectFindings(project, session.checks(), wish, session.files());
  std::erase_if(findings, [&options](const PlacedFinding& finding) {
    return finding.key != options.key || finding.language != options.language;
  });
  return findings;
}

bool areOfOneTable(const std::vector<PlacedFinding>& findings) {
  return std::all_of(findings.begin(), findings.end(),
                     [&](const PlacedFinding& finding) { return finding.table == findings.front().table; });
}

ExitCode write(ProjectSession& session, const AcceptOptions& options, const std::vector<PlacedFinding>& findings) {
  AcceptanceChange change;
  for (const PlacedFinding& finding : findings) {
    session.console().message(std::string(options.writing.dryRun ? "Would accept: " : "Accepted: ") +
                              printableLine(finding.sentence) + " [" + std::string(entryOf(finding.check).name) + "]");
    change.add.push_back(*acceptanceOf(finding));
  }
  if (options.writing.dryRun) return ExitCode::Fine;
  const auto written = changeAcceptances(session.files(), session.settingsDirectory(), change);
  if (written) return ExitCode::Fine;
  session.console().error(written.error().sentence);
  return ExitCode::Unusable;
}

ExitCode accept(const AcceptOptions& options, Console& console) {
  FindingsWish wish;
  const auto checks = chosenChecks(options, console);
  if (!checks) return ExitCode::WrongUsage;
  wish.checks = *checks;
  if (!options.table.empty()) wish.tables = {options.table};
  ProjectSession session(console, {.writing = &options.writing, .command = "accept --language " + options.language});
  const OpenedLanguage opened = openLanguage(session, options.project, options.language);
  if (opened.code != ExitCode::Fine) return opened.code;
  wish.languages = {opened.language->code()};
  const std::vector<PlacedFinding> findings = findingsToAccept(session, options, wish);
  if (findings.empty()) {
    console.error("nothing is found in the translation of " + inQuotes(options.key));
    return ExitCode::WrongUsage;
  }
  if (!areOfOneTable(findings)) {
    console.error("several tables have findings for the key " + inQuotes(options.key) + "; choose one with --table");
    return ExitCode::WrongUsage;
  }
  return write(session, options, findings);
}

}  // namespace

void addAcceptCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<AcceptOptions>();
  CLI::App& command = addCommand(
      program, typed,
      {"accept", "Say that what checks find in a translation is all right", "~/Projects/Harbour --language de Ebb"},
      [options](Console& console) { return accept(*options, console); });
  addProject(command, options->project);
  addRequired(command, "KEY", options->key, "Key of the string; behind -- if it begins with -");
  addLanguage(command, options->language);
  command.add_option("--table", options->table, "Table that has the key, if several do")->option_text("ID");
  command.add_option("--check", options->checks, "Only what this check finds; may be repeated")
      ->allow_extra_args(false)
      ->option_text("NAME");
  addDryRun(command, options->writing.dryRun);
}

}  // namespace glossmill
