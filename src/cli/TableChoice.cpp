#include "cli/TableChoice.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/DisplayText.h"
#include "host/Paths.h"

namespace glossmill {

namespace {

bool hasTable(const ProjectWindowController& project, const std::string& id) {
  const StringsTables& tables = project.tables();
  return std::any_of(tables.begin(), tables.end(),
                     [&id](const std::shared_ptr<StringsTable>& table) { return table->id == id; });
}

bool explainUnknown(const ProjectSession& session, const std::string& id) {
  if (session.project().projectOptions().rules == RuleSet::Classic) {
    session.console().error("there are no tables without --rules xcode");
    return false;
  }
  std::string ids;
  for (const std::shared_ptr<StringsTable>& table : session.project().tables()) {
    ids += ids.empty() ? "" : ", ";
    ids += table->id;
  }
  session.console().error("the project has no table " + inQuotes(id) + "; it has " + (ids.empty() ? "none" : ids));
  return false;
}

}  // namespace

void addTables(CLI::App& command, std::vector<std::string>& ids) {
  command.add_option("--table", ids, "With xcode's rules: only this table; may be repeated")
      ->allow_extra_args(false)
      ->option_text("ID");
}

bool keepTables(ProjectSession& session, const std::vector<std::string>& ids) {
  if (ids.empty()) return true;
  for (const std::string& id : ids) {
    if (!hasTable(session.project(), id)) return explainUnknown(session, id);
  }
  session.project().stringController().removeObjectsIf([&ids](const LocalizeString& record) {
    return !record.tableRow() || std::find(ids.begin(), ids.end(), record.tableRow()->table->id) == ids.end();
  });
  return true;
}

bool placeTable(ProjectSession& session, const std::string& id) {
  if (hasTable(session.project(), id)) return false;
  const std::size_t slash = id.rfind('/');
  const std::string name = slash == std::string::npos ? id : id.substr(slash + 1);
  const FileUrl& project = session.project().projectDirectory();
  const FileUrl directory = slash == std::string::npos ? project : project.appending(id.substr(0, slash));
  for (const std::shared_ptr<StringsTable>& table : session.project().tables()) {
    if (!table->directory.empty() || table->name != name) continue;
    table->id = id;
    table->directory = directory;
    return keepTables(session, {id});
  }
  return false;
}

}  // namespace glossmill
