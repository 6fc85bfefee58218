#include "cli/SetCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/DisplayText.h"
#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

struct SetOptions {
  ProjectChoice project;
  std::string language;
  std::string table;
  std::string key;
  std::string text;
  WritingOptions writing;
};

StringArray recordsOf(const ProjectWindowController& project, const std::string& key) {
  StringArray records;
  for (const std::shared_ptr<LocalizeString>& record : project.stringList()) {
    if (record->name() == key) records.push_back(record);
  }
  return records;
}

/// Null, explained on the console, unless exactly one string has the key.
std::shared_ptr<LocalizeString> onlyRecord(const ProjectSession& session, const SetOptions& options) {
  const StringArray records = recordsOf(session.project(), options.key);
  if (records.size() == 1) return records.front();
  if (records.empty()) {
    session.console().error("no string has the key " + inQuotes(options.key) +
                            (options.table.empty() ? "" : " in the table " + inQuotes(options.table)));
    return nullptr;
  }
  std::string ids;
  for (const std::shared_ptr<LocalizeString>& record : records) {
    ids += ids.empty() ? "" : ", ";
    ids += record->tableRow() ? record->tableRow()->table->id : "";
  }
  session.console().error("several tables have the key " + inQuotes(options.key) + ": " + ids +
                          "; choose one with --table");
  return nullptr;
}

ExitCode set(const SetOptions& options, Console& console) {
  if (!isValidUtf8(options.text)) {
    console.error("the text is not valid UTF-8");
    return ExitCode::WrongUsage;
  }
  ProjectSession session(console, {.writing = &options.writing, .command = "set --language " + options.language});
  const OpenedLanguage opened = openLanguage(session, options.project, options.language);
  if (opened.code != ExitCode::Fine) return opened.code;
  if (!options.table.empty() && !(placeTable(session, options.table) || keepTables(session, {options.table}))) {
    return ExitCode::WrongUsage;
  }
  const std::shared_ptr<LocalizeString> record = onlyRecord(session, options);
  if (!record) return ExitCode::WrongUsage;
  std::optional<std::string> text;
  if (!options.text.empty()) text = options.text;
  session.project().applyEdit(EditKind::Typing, editOf(record, opened.language->code(), std::move(text)));
  return session.saveProject();
}

}  // namespace

void addSetCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<SetOptions>();
  CLI::App& command = addCommand(
      program, typed,
      {"set", "Write one translation; the empty text takes it out", "~/Projects/Harbour --language de Ebb Ebbe"},
      [options](Console& console) { return set(*options, console); });
  addProject(command, options->project);
  addRequired(command, "KEY", options->key, "Key of the string, as the program sees it; behind -- if it begins with -");
  addRequired(command, "TEXT", options->text, "Its translation, taken as it is");
  addLanguage(command, options->language);
  command
      .add_option("--table", options->table, "Table that has the key, if several do; or DIRECTORY/NAME for a new one")
      ->option_text("ID");
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
