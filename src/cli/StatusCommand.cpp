#include "cli/StatusCommand.h"

#include <memory>

#include "cli/DisplayText.h"
#include "cli/JsonValues.h"
#include "cli/LanguageChoice.h"
#include "cli/LanguageTable.h"
#include "cli/TableChoice.h"
#include "host/Paths.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

struct StatusOptions {
  ProjectChoice project;
  std::vector<std::string> tables;
  std::vector<std::string> languages;
  bool json = false;
  bool missing = false;
};

/// Calls `visit` for each string without an entry in the language.
template <typename Visit>
void eachMissing(const ProjectSession& session, const Language& language, Visit visit) {
  for (const std::shared_ptr<LocalizeString>& record : session.project().stringList()) {
    if (record->isMissing(language.code())) visit(*record);
  }
}

Json missingJson(const ProjectSession& session, const Language& language) {
  Json missing = Json::array();
  eachMissing(session, language, [&](const LocalizeString& record) {
    missing.push_back({{"name", record.name()},
                       {"comments", record.commentArray()},
                       {"files", filesJson(session, record.filesArray())}});
  });
  return missing;
}

void printJson(const ProjectSession& session, const LanguageArray& languages, bool withMissing) {
  JsonWriter writer(session.console());
  writer.member("package", packageJson(session));
  writer.member("keys", session.project().stringList().size());
  writer.list("languages", languages.size(), [&](std::size_t index) {
    Json language = languageJson(session, *languages[index]);
    if (withMissing) language["missingStrings"] = missingJson(session, *languages[index]);
    return language;
  });
  writer.end();
}

std::string missingText(const ProjectSession& session, const LocalizeString& record) {
  std::string text = "  " + inQuotes(printableLine(record.name())) + "\n";
  for (const std::string& comment : record.commentArray()) {
    if (!comment.empty()) text += "      /* " + printableLine(comment) + " */\n";
  }
  for (const FileUrl& file : record.filesArray()) {
    text += "      " + printableLine(shownPath(session.project().projectDirectory(), file)) + "\n";
  }
  return text;
}

void printMissing(const ProjectSession& session, const Language& language) {
  if (session.project().missingTranslations(language) == 0) return;
  const std::string heading =
      printableLine(language.iso639()) + ": " + session.project().languageStatusString(language);
  std::string text = "\n" + session.console().painted(Paint::Heading, heading) + "\n";
  eachMissing(session, language, [&](const LocalizeString& record) { text += missingText(session, record); });
  session.console().data(text);
}

void printText(const ProjectSession& session, const LanguageArray& languages, bool withMissing) {
  if (languages.empty()) session.console().message("The project has no languages.");
  if (!languages.empty()) session.console().data(languageTable(session, languages));
  if (!withMissing) return;
  for (const std::shared_ptr<Language>& language : languages) printMissing(session, *language);
}

ExitCode status(const StatusOptions& options, Console& console) {
  ProjectSession session(console, {});
  const ExitCode opened = session.open(options.project);
  if (opened != ExitCode::Fine) return opened;
  const std::optional<LanguageArray> languages = chosenLanguages(session, options.languages);
  if (!languages || !keepTables(session, options.tables)) return ExitCode::WrongUsage;
  (options.json ? printJson : printText)(session, *languages, options.missing);
  return ExitCode::Fine;
}

}  // namespace

void addStatusCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<StatusOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"status", "Show how much of each language is translated",
                                  "~/Projects/Harbour --language de --language fr --missing"},
                                 [options](Console& console) { return status(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addLanguages(command, options->languages);
  addFlag(command, "--missing", options->missing, "List the missing keys with comment and file");
  addFlag(command, "--json", options->json, "Print it as JSON");
}

}  // namespace glossmill
