#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace glossmill {

/// What can be typed for an option's value or an argument.
enum class ValueKind {
  None,  ///< an option without a value
  File,
  Directory,
  Language,  ///< a code that the project has
  Choice,    ///< one of some words
  Choices,   ///< several of them, with commas between
  Other,
};

struct TypedValue {
  ValueKind kind = ValueKind::None;
  std::string shown;  ///< what stands for it in the help
  std::vector<std::string> choices;
  bool repeats = false;  ///< may be given more than once
};

struct TreeOption {
  std::vector<std::string> names;  ///< with their dashes, short ones first
  std::string help;
  TypedValue value;
};

struct TreeArgument {
  std::string help;
  TypedValue value;
  bool isRequired = true;
};

struct TreeCommand {
  std::string name;
  std::string help;
  std::vector<TreeArgument> arguments;
  std::vector<TreeOption> options;
  std::vector<std::string> examples;  ///< lines to type
};

/// The commands of a program as somebody types them, read from their definitions. Hidden commands are left out.
struct CommandTree {
  std::string name;
  std::string help;
  std::vector<TreeOption> options;
  std::vector<TreeCommand> commands;
};

CommandTree commandTree(const CLI::App& program);

}  // namespace glossmill
