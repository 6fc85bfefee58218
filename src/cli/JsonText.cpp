#include "cli/JsonText.h"

#include "cli/Paths.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostHeld = 1 << 20;

Json textOrNull(const std::optional<std::string>& text) {
  return text ? Json(*text) : Json();
}

}  // namespace

void JsonWriter::member(std::string_view memberName, const Json& memberValue) {
  name(memberName);
  value(memberValue);
}

void JsonWriter::end() {
  m_text += m_isFirst ? "{}\n" : "\n}\n";
  m_console.data(m_text);
  m_text.clear();
}

void JsonWriter::name(std::string_view memberName) {
  m_text += m_isFirst ? "{\n  " : ",\n  ";
  m_isFirst = false;
  value(memberName);
  m_text += ": ";
}

void JsonWriter::value(const Json& value) {
  m_text += value.dump(-1, ' ', false, Json::error_handler_t::replace);
  if (m_text.size() < kMostHeld) return;
  m_console.data(m_text);
  m_text.clear();
}

Json jsonPath(const ProjectSession& session, const FileUrl& url) {
  const std::string_view path = pathBelow(session.project().projectDirectory(), url);
  return path.empty() ? "." : path;
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
