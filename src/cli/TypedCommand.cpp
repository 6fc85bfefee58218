#include "cli/TypedCommand.h"

#include <CLI/CLI.hpp>
#include <utility>

namespace glossmill {

Loudness TypedCommand::loudness() const {
  if (quiet) return Loudness::Quiet;
  if (verbose) return Loudness::Verbose;
  return log ? Loudness::Log : Loudness::Normal;
}

CLI::App& addCommand(CLI::App& program, TypedCommand& typed, const CommandTexts& texts,
                     std::function<ExitCode(Console&)> run) {
  CLI::App& command = *program.add_subcommand(texts.name, texts.description);
  command.group("Commands");
  command.footer("Example:\n  glossmill-cli " + texts.name + " " + texts.example);
  program.footer(program.get_footer() + "\n  glossmill-cli " + texts.name + " " + texts.example);
  command.final_callback([&typed, action = std::move(run)] { typed.run = action; });
  addLoudness(command, typed);
  return command;
}

void addLoudness(CLI::App& app, TypedCommand& typed) {
  CLI::Option* quiet = app.add_flag("-q,--quiet", typed.quiet, "Print no messages but errors");
  app.add_flag("--log", typed.log, "Print every line of the log as it comes, instead of a summary")
      ->excludes(quiet)
      ->option_text(" ");
  app.add_flag("-v,--verbose", typed.verbose, "The same, with the lines of the system log")
      ->excludes(quiet)
      ->option_text(" ");
  quiet->option_text(" ");
}

void addFlag(CLI::App& command, const std::string& names, bool& isSet, const std::string& help) {
  command.add_flag(names, isSet, help);
}

void addRequired(CLI::App& command, const std::string& names, std::string& value, const std::string& help,
                 const std::string& shown) {
  command.add_option(names, value, help)->required()->option_text(shown);
}

void addDirectory(CLI::App& command, std::string& directory) {
  addRequired(command, "DIR", directory, "Directory of the Xcode project");
}

void addProject(CLI::App& command, ProjectChoice& choice) {
  addDirectory(command, choice.directory);
  command.add_option("--rules", choice.rules, "By which rules it is read: classic or xcode")
      ->check(CLI::IsMember({"classic", "xcode"}))
      ->option_text("RULES");
  command.add_option("--package", choice.packages, "With xcode's rules: read this package; may be repeated")
      ->allow_extra_args(false)
      ->option_text("PATH");
}

void addLanguage(CLI::App& command, std::string& code) {
  addRequired(command, "-l,--language", code, "Code of the language, as in its .lproj directory", "CODE");
}

void addLanguages(CLI::App& command, std::vector<std::string>& codes) {
  command.add_option("-l,--language", codes, "Only this language; may be repeated")
      ->allow_extra_args(false)
      ->option_text("CODE");
}

void addDryRun(CLI::App& command, bool& dryRun) {
  addFlag(command, "-n,--dry-run", dryRun, "Say what would be written, and write nothing");
}

}  // namespace glossmill
