#include "cli/ProjectJson.h"

#include "cli/JsonValues.h"
#include "cli/LeftOut.h"
#include "cli/TableJson.h"

namespace glossmill {

namespace {

Json stringJson(const ProjectSession& session, const LocalizeString& record) {
  const ProjectWindowController& project = session.project();
  Json translations = Json::object();
  // Codes come in the order of the languages, each once: the search for an earlier one is spared.
  auto& entries = translations.get_ref<Json::object_t&>();
  entries.reserve(record.languagesDict().count());
  record.languagesDict().each(
      [&entries](LanguageCode code, std::string_view text) { entries.emplace_back(code.text(), text); });
  Json string = {{"name", record.name()},
                 {"useCount", record.useCount()},
                 {"comments", record.commentArray()},
                 {"files", filesJson(session, record.filesArray())},
                 {"translations", std::move(translations)},
                 {"status", project.statusTexts().textOf(record.status(&project))},
                 {"statusString", record.statusString(project.statusTexts(), &project)}};
  if (record.tableRow()) addTableRow(session, *record.tableRow(), string);
  return string;
}

}  // namespace

void printProjectJson(const ProjectSession& session) {
  const ProjectWindowController& project = session.project();
  const LogWindowController* log = session.log();
  JsonWriter writer(session.console());
  writer.member("package", packageJson(session));
  if (project.projectOptions().rules == RuleSet::Xcode) writeTables(session, writer);
  writer.list("files", project.fileList().size(),
              [&](std::size_t i) { return jsonPath(session, project.fileList()[i]); });
  writer.list("languages", project.languagesList()->size(),
              [&](std::size_t i) { return languageJson(session, *(*project.languagesList())[i]); });
  writer.list("strings", project.stringList().size(),
              [&](std::size_t i) { return stringJson(session, *project.stringList()[i]); });
  writer.list("log", log ? log->messageCount() : 0, [&](std::size_t i) { return log->message(i); });
  writer.list("systemLog", session.systemLog().count(), [&](std::size_t i) { return session.systemLog().message(i); });
  const std::vector<FileFindings>& leftOut = project.scanReport().files();
  writer.list("unread", leftOut.size(), [&](std::size_t i) { return leftOutJson(session, leftOut[i]); });
  writer.end();
}

}  // namespace glossmill
