#include "cli/LanguageChoice.h"

#include <algorithm>

#include "cli/DisplayText.h"
#include "cli/TableChoice.h"

namespace glossmill {

namespace {

bool hasLanguage(const LanguageArray& languages, const std::string& code) {
  return std::any_of(languages.begin(), languages.end(),
                     [&code](const std::shared_ptr<Language>& language) { return language->iso639() == code; });
}

void explainMissing(const ProjectSession& session, const std::string& code) {
  std::string codes;
  for (const std::shared_ptr<Language>& language : *session.project().languagesList()) {
    codes += codes.empty() ? "" : ", ";
    codes += language->iso639();
  }
  session.console().error("the project has no language " + inQuotes(code) + "; it has " +
                          (codes.empty() ? "none" : codes));
}

}  // namespace

std::optional<LanguageArray> chosenLanguages(const ProjectSession& session, const std::vector<std::string>& codes) {
  const LanguageArray& all = *session.project().languagesList();
  for (const std::string& code : codes) {
    if (hasLanguage(all, code)) continue;
    explainMissing(session, code);
    return std::nullopt;
  }
  if (codes.empty()) return all;
  LanguageArray chosen;
  std::copy_if(all.begin(), all.end(), std::back_inserter(chosen), [&codes](const std::shared_ptr<Language>& language) {
    return std::find(codes.begin(), codes.end(), language->iso639()) != codes.end();
  });
  return chosen;
}

OpenedLanguage openLanguage(ProjectSession& session, const ProjectChoice& choice, const std::string& code,
                            const std::vector<std::string>& tables) {
  const ExitCode opened = session.openPackage(choice);
  if (opened != ExitCode::Fine) return {opened, nullptr};
  const std::optional<LanguageArray> chosen = chosenLanguages(session, {code});
  if (!chosen || !keepTables(session, tables)) return {ExitCode::WrongUsage, nullptr};
  return {ExitCode::Fine, chosen->front()};
}

}  // namespace glossmill
