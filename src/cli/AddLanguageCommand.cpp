#include "cli/AddLanguageCommand.h"

#include <memory>

#include "cli/DisplayText.h"
#include "cli/ProjectSession.h"
#include "cli/TableChoice.h"
#include "host/Paths.h"
#include "project/NewLanguageDirectories.h"

namespace glossmill {

namespace {

struct AddLanguageOptions {
  ProjectChoice project;
  std::string code;
  std::vector<std::string> tables;
  bool save = false;
  WritingOptions writing;
};

/// False when the project has the language, though the dialog would take it: at the next scan the strings file of the
/// second directory would go to whatever language was found before (rule 8).
bool isNewLanguage(const ProjectSession& session, const std::string& code) {
  for (const std::shared_ptr<Language>& language : *session.project().languagesList()) {
    if (language->iso639() != code) continue;
    const FileUrl& url = language->localizedStringUrl();
    session.console().error("the project has the language " + inQuotes(code) +
                            " already: " + std::string(shownPath(session.project().projectDirectory(), url)));
    return false;
  }
  return true;
}

bool hasTables(const ProjectSession& session) {
  return session.project().projectOptions().rules == RuleSet::Xcode;
}

/// Where there are tables, with a region, too.
bool isCode(const ProjectSession& session, const std::string& code) {
  const IsoTable& table = session.project().iso639Dict();
  return table.nameOf(hasTables(session) ? languageWithoutRegion(code) : std::string_view(code)).has_value();
}

std::shared_ptr<Language> add(ProjectSession& session, const AddLanguageOptions& options) {
  if (!hasTables(session)) return session.project().addLanguage(options.code);
  const std::shared_ptr<Language> added = session.project().addLanguageToTables(options.code, options.tables);
  if (!added) session.console().error("no directory was made");
  return added;
}

ExitCode addLanguageToProject(ProjectSession& session, const AddLanguageOptions& options) {
  const std::shared_ptr<Language> added = add(session, options);
  if (!added) return ExitCode::Unusable;
  const bool saved = !options.save || session.project().saveLanguage(added);
  session.reportFiles();
  return saved ? ExitCode::Fine : ExitCode::Unusable;
}

ExitCode addNewLanguage(const AddLanguageOptions& options, Console& console) {
  ProjectSession session(console, {.leavesDirectoriesToSave = options.save,
                                   .writing = &options.writing,
                                   .command = "add-language " + options.code});
  const ExitCode opened = session.openPackage(options.project);
  if (opened != ExitCode::Fine) return opened;
  if (!isCode(session, options.code)) {
    console.error(inQuotes(options.code) + " is no language code of ISO 639");
    return ExitCode::WrongUsage;
  }
  // A language that some tables have may go to others.
  const bool mayBeKnown = !options.tables.empty();
  if (!keepTables(session, options.tables)) return ExitCode::WrongUsage;
  if (!mayBeKnown && !isNewLanguage(session, options.code)) return ExitCode::WrongUsage;
  return addLanguageToProject(session, options);
}

}  // namespace

void addAddLanguageCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<AddLanguageOptions>();
  CLI::App& command = addCommand(
      program, typed, {"add-language", "Create the directory of a new language", "~/Projects/Harbour sv --save"},
      [options](Console& console) { return addNewLanguage(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addRequired(command, "CODE", options->code, "ISO 639 code of the language, two or three letters");
  addFlag(command, "--save", options->save, "Write its strings file too");
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
