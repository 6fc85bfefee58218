#include "cli/PruneCommand.h"

#include <memory>

#include "cli/DisplayText.h"
#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

struct PruneOptions {
  ProjectChoice project;
  std::vector<std::string> languages;
  std::vector<std::string> tables;
  WritingOptions writing;
};

/// The key, its table, and the languages that have an entry of it.
std::string lineFor(const LocalizeString& record, const LanguageArray& languages) {
  std::string codes;
  for (const std::shared_ptr<Language>& language : languages) {
    if (record.languagesDict().contains(language->code())) codes += " " + printableLine(language->iso639());
  }
  return inQuotes(printableLine(record.name())) + " in " + printableLine(record.tableRow()->table->id) + ":" + codes +
         "\n";
}

void show(ProjectSession& session, const std::vector<Edit>& edits, const LanguageArray& languages) {
  std::string text;
  const LocalizeString* last = nullptr;
  for (const Edit& edit : edits) {
    if (edit.record.get() != last) text += lineFor(*edit.record, languages);
    last = edit.record.get();
  }
  session.addCounts(text + "unused entries  " + std::to_string(edits.size()) + "\n\n",
                    {{"unusedEntries", edits.size()}});
}

ExitCode prune(const PruneOptions& options, Console& console) {
  ProjectSession session(console, {.writing = &options.writing, .command = "prune"});
  const ExitCode opened = session.openPackage(options.project);
  if (opened != ExitCode::Fine) return opened;
  if (session.project().projectOptions().rules == RuleSet::Classic) {
    console.error("what is unused is known with --rules xcode only");
    return ExitCode::WrongUsage;
  }
  const std::optional<LanguageArray> languages = chosenLanguages(session, options.languages);
  if (!languages || !keepTables(session, options.tables)) return ExitCode::WrongUsage;
  const std::vector<Edit> edits = session.project().unusedEntries(*languages);
  show(session, edits, *languages);
  session.project().removeEntries(edits);
  return session.saveProject();
}

}  // namespace

void addPruneCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<PruneOptions>();
  CLI::App& command =
      addCommand(program, typed,
                 {"prune", "Take out the entries that nothing uses, and show them", "~/Projects/Harbour --dry-run"},
                 [options](Console& console) { return prune(*options, console); });
  addProject(command, options->project);
  addLanguages(command, options->languages);
  addTables(command, options->tables);
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
