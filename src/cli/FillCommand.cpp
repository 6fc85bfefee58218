#include "cli/FillCommand.h"

#include <memory>

#include "cli/LanguageChoice.h"
#include "cli/TableChoice.h"

namespace glossmill {

namespace {

struct FillOptions {
  ProjectChoice project;
  std::vector<std::string> tables;
  std::string language;
  WritingOptions writing;
};

ExitCode fill(const FillOptions& options, Console& console) {
  ProjectSession session(console, {.writing = &options.writing, .command = "fill --language " + options.language});
  const OpenedLanguage opened = openLanguage(session, options.project, options.language, options.tables);
  if (opened.code != ExitCode::Fine) return opened.code;
  const std::size_t before = session.project().missingTranslations(*opened.language);
  session.project().languageFromBaseLanguage(opened.language);
  const ExitCode finished = session.finishJob();
  if (finished != ExitCode::Fine) return finished;
  const std::size_t filled = before - session.project().missingTranslations(*opened.language);
  session.addCounts("new entries  " + std::to_string(filled) + "\n\n", {{"newEntries", filled}});
  return session.saveProject();
}

}  // namespace

void addFillCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<FillOptions>();
  CLI::App& command = addCommand(program, typed,
                                 {"fill", "Give every missing entry of a language its key as translation, and save",
                                  "~/Projects/Harbour --language en"},
                                 [options](Console& console) { return fill(*options, console); });
  addProject(command, options->project);
  addTables(command, options->tables);
  addLanguage(command, options->language);
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
