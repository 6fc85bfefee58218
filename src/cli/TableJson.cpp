#include "cli/TableJson.h"

#include <filesystem>

#include "cli/JsonValues.h"
#include "model/TableRow.h"

namespace glossmill {

namespace {

/// Also of what lies outside of the project's directory.
std::string pathFromProject(const ProjectSession& session, const FileUrl& url) {
  const std::filesystem::path directory(session.project().projectDirectory().path());
  return std::filesystem::path(url.path()).lexically_relative(directory).string();
}

Json numberOrNull(std::uint32_t number) {
  return number == 0 ? Json() : Json(number);
}

Json tableJson(const ProjectSession& session, const StringsTable& table) {
  Json files = Json::object();
  for (const StringsTable::File& file : table.files) {
    files[file.language.text()] = pathFromProject(session, file.file);
  }
  const Json directory = table.directory.empty() ? Json() : Json(pathFromProject(session, table.directory));
  return {{"id", table.id}, {"name", table.name}, {"directory", directory}, {"files", std::move(files)}};
}

Json catalogJson(const CatalogRow& row) {
  Json states = Json::object();
  for (const auto& [language, state] : row.states) states[language.text()] = nameOfState(state);
  const Json extraction = row.extractionState.empty() ? Json() : Json(row.extractionState);
  return {{"key", row.key},
          {"extractionState", extraction},
          {"shouldTranslate", row.shouldTranslate},
          {"states", std::move(states)}};
}

Json problemJson(const ProjectSession& session, const Problem& problem) {
  return {{"file", pathFromProject(session, problem.file)},
          {"line", numberOrNull(problem.line)},
          {"column", numberOrNull(problem.column)},
          {"kind", problem.kind},
          {"text", problem.text}};
}

}  // namespace

void writeTables(const ProjectSession& session, JsonWriter& writer) {
  const ProjectWindowController& project = session.project();
  writer.member("rules", "xcode");
  writer.list("packages", project.packages().size(),
              [&](std::size_t i) { return Json(pathFromProject(session, project.packages()[i])); });
  writer.list("tables", project.tables().size(),
              [&](std::size_t i) { return tableJson(session, *project.tables()[i]); });
  writer.list("problems", project.problems().size(),
              [&](std::size_t i) { return problemJson(session, project.problems()[i]); });
}

void addTableRow(const ProjectSession& session, const TableRow& row, Json& string) {
  Json places = Json::array();
  for (const SourcePlace& place : row.places) {
    places.push_back({{"file", pathFromProject(session, place.file)}, {"line", place.line}, {"column", place.column}});
  }
  string["table"] = row.table->id;
  string["source"] = row.sourceText ? Json(row.sourceText.view()) : Json();
  string["places"] = std::move(places);
  string["unused"] = row.isUnused;
  if (row.catalog) string["catalog"] = catalogJson(*row.catalog);
}

}  // namespace glossmill
