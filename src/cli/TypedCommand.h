#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/ExitCode.h"
#include "cli/ProjectChoice.h"

namespace CLI {
class App;
}

namespace glossmill {

/// What was typed: the command to run, and how loud it is to be.
struct TypedCommand {
  bool quiet = false;
  bool log = false;
  bool verbose = false;
  std::function<ExitCode(Console&)> run;

  Loudness loudness() const;
};

/// How a command presents itself in the help.
struct CommandTexts {
  std::string name;
  std::string description;
  std::string example;  ///< what to type after the program's name
};

/// Adds a command with the options that every command has. It sets `typed.run` when it was typed.
CLI::App& addCommand(CLI::App& program, TypedCommand& typed, const CommandTexts& texts,
                     std::function<ExitCode(Console&)> run);

/// Adds --quiet, --log and --verbose.
void addLoudness(CLI::App& app, TypedCommand& typed);

/// Adds the project directory, which every command needs.
void addDirectory(CLI::App& command, std::string& directory);

/// Adds it with the options that say how the project is read, for a command that reads it.
void addProject(CLI::App& command, ProjectChoice& choice);

/// Adds --language, once and required, or any number of times.
void addLanguage(CLI::App& command, std::string& code);
void addLanguages(CLI::App& command, std::vector<std::string>& codes);

/// Adds an option without a value.
void addFlag(CLI::App& command, const std::string& names, bool& isSet, const std::string& help);

/// Adds an option or an argument that must be given; `shown` stands for its value in the help.
void addRequired(CLI::App& command, const std::string& names, std::string& value, const std::string& help,
                 const std::string& shown = " ");

/// Adds --dry-run, for a command that writes.
void addDryRun(CLI::App& command, bool& dryRun);

}  // namespace glossmill
