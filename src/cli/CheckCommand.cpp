#include "cli/CheckCommand.h"

#include <memory>

#include "cli/DisplayText.h"
#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"
#include "cli/TextTable.h"

namespace glossmill {

namespace {

struct CheckOptions {
  ProjectChoice project;
  std::vector<std::string> tables;
  std::vector<std::string> languages;
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

ExitCode check(const CheckOptions& options, Console& console) {
  ProjectSession session(console, {});
  const ExitCode opened = session.openPackage(options.project, ExitCode::CheckFailed);
  if (opened != ExitCode::Fine) return opened;
  const std::optional<LanguageArray> languages = chosenLanguages(session, options.languages);
  if (!languages || !keepTables(session, options.tables)) return ExitCode::WrongUsage;
  const LanguageArray incomplete = incompleteOf(session, *languages);
  console.data(incompleteText(session, incomplete));
  console.message(closingText(incomplete.size(), languages->size()));
  return incomplete.empty() ? ExitCode::Fine : ExitCode::CheckFailed;
}

}  // namespace

void addCheckCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<CheckOptions>();
  CLI::App& command = addCommand(
      program, typed, {"check", "Fail unless languages are complete, for build servers", "~/Projects/Harbour --quiet"},
      [options](Console& console) { return check(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addLanguages(command, options->languages);
}

}  // namespace glossmill
