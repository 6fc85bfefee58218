#include "cli/ImportCommand.h"

#include <memory>

#include "cli/LanguageChoice.h"
#include "cli/Paths.h"
#include "cli/TextTable.h"
#include "exchange/ExchangeFormat.h"
#include "platform/ReadText.h"

namespace glossmill {

namespace {

struct ImportOptions {
  std::string directory;
  std::string language;
  std::string file;
  bool dryRun = false;
  WritingOptions writing;
};

using Translations = std::vector<std::optional<std::string>>;

/// What the strings of the project have in this language, in their order.
Translations translationsOf(const ProjectSession& session, const Language& language) {
  Translations translations;
  for (const std::shared_ptr<LocalizeString>& record : session.project().stringList()) {
    const std::optional<std::string_view> text = record->languagesDict().find(language.code());
    translations.push_back(text ? std::optional(std::string(*text)) : std::nullopt);
  }
  return translations;
}

struct ImportCounts {
  std::size_t added = 0;
  std::size_t changed = 0;
  std::size_t unchanged = 0;
  std::size_t unknown = 0;

  void count(const std::optional<std::string>& before, const std::optional<std::string>& after) {
    ++(!before ? added : before == after ? unchanged : changed);
  }
};

ImportCounts importCounts(const ProjectSession& session, const ImportTable& table, const Translations& before,
                          const Translations& after) {
  ImportCounts counts;
  const StringArray& records = session.project().stringList();
  for (std::size_t index = 0; index < records.size(); ++index) {
    if (table.contains(records[index]->name())) counts.count(before[index], after[index]);
  }
  counts.unknown = table.size() - counts.added - counts.changed - counts.unchanged;
  return counts;
}

void printCounts(const ImportCounts& counts, Console& console) {
  TextTable table({TextTable::Align::Left, TextTable::Align::Right});
  table.addRow({{"new entries"}, {std::to_string(counts.added)}});
  table.addRow({{"changed entries"}, {std::to_string(counts.changed)}});
  table.addRow({{"unchanged entries"}, {std::to_string(counts.unchanged)}});
  table.addRow({{"entries unknown to the project"}, {std::to_string(counts.unknown)}});
  console.data(table.text(console) + "\n");
}

/// The project passes over a file that it cannot read without a word, so it is read here first.
Result<ImportTable> readTable(ProjectSession& session, const FileUrl& file) {
  if (file.empty()) return Error{"The file does not exist."};
  const Result<std::string> text = readText(session.files(), file);
  return text ? Result<ImportTable>(exchangeFormats().front().read(text.value())) : text.error();
}

ExitCode importLanguage(const ImportOptions& options, Console& console) {
  ProjectSession session(console, {.files = ReportingFiles::modeFor(options.dryRun),
                                   .writing = &options.writing,
                                   .command = "import --language " + options.language});
  const OpenedLanguage opened = openLanguage(session, options.directory, options.language);
  if (opened.code != ExitCode::Fine) return opened.code;
  const FileUrl file = absoluteUrl(options.file);
  const Result<ImportTable> table = readTable(session, file);
  if (!table) {
    console.error("cannot read \"" + options.file + "\": " + table.error().sentence);
    return ExitCode::Unusable;
  }
  const Translations before = translationsOf(session, *opened.language);
  session.project().importLanguageFromFile(opened.language, file);
  const ExitCode finished = session.finishJob();
  if (finished != ExitCode::Fine) return finished;
  const Translations after = translationsOf(session, *opened.language);
  printCounts(importCounts(session, table.value(), before, after), console);
  return session.saveProject();
}

}  // namespace

void addImportCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<ImportOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"import", "Take over the translations of a filled-in text file, and save",
                                  "~/Projects/Harbour --language de Harbour_de.txt"},
                                 [options](Console& console) { return importLanguage(*options, console); });
  addDirectory(command, options->directory);
  addRequired(command, "FILE", options->file, "Text file that was exported and filled in");
  addLanguage(command, options->language);
  addDryRun(command, options->dryRun);
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
