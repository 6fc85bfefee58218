#include "cli/JsonValues.h"

#include "host/Paths.h"

namespace glossmill {

namespace {

Json textOrNull(const std::optional<std::string>& text) {
  return text ? Json(*text) : Json();
}

}  // namespace

Json jsonPath(const ProjectSession& session, const FileUrl& url) {
  const std::string_view path = pathBelow(session.project().projectDirectory(), url);
  return path.empty() ? "." : path;
}

Json filesJson(const ProjectSession& session, const std::vector<FileUrl>& files) {
  Json paths = Json::array();
  for (const FileUrl& file : files) paths.push_back(jsonPath(session, file));
  return paths;
}

Json packageJson(const ProjectSession& session) {
  const std::optional<FileUrl>& package = session.project().projectPackage();
  return package ? jsonPath(session, *package) : Json();
}

Json languageJson(const ProjectSession& session, const Language& language) {
  const ProjectWindowController& project = session.project();
  return {{"iso639", language.iso639()},
          {"description", textOrNull(language.description())},
          {"path", jsonPath(session, language.localizedStringUrl())},
          {"urlDepth", language.urlDepth()},
          {"missing", project.missingTranslations(language)},
          {"status", project.statusTexts().textOf(project.languageStatus(language))}};
}

}  // namespace glossmill
