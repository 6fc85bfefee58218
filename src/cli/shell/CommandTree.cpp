#include "cli/shell/CommandTree.h"

#include <CLI/CLI.hpp>
#include <string_view>

#include "text/Split.h"

namespace glossmill {

namespace {

/// The words that a check of membership lists in braces behind the name of the type.
std::vector<std::string> choicesOf(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  const std::size_t open = type.find('{');
  const std::size_t close = type.find('}', open);
  std::vector<std::string> choices;
  if (close == std::string::npos) return choices;
  for (const std::string_view choice : split(std::string_view(type).substr(open + 1, close - open - 1), ',')) {
    choices.emplace_back(choice);
  }
  return choices;
}

ValueKind kindOf(const TypedValue& value, const CLI::Option& option) {
  if (!value.choices.empty()) return option.get_delimiter() == ',' ? ValueKind::Choices : ValueKind::Choice;
  if (value.shown == "DIR") return ValueKind::Directory;
  if (value.shown == "FILE" || value.shown == "PATH") return ValueKind::File;
  return value.shown == "CODE" ? ValueKind::Language : ValueKind::Other;
}

TypedValue valueOf(const CLI::Option& option, std::string shown) {
  TypedValue value;
  if (option.get_items_expected_max() == 0) return value;
  value.shown = std::move(shown);
  value.choices = choicesOf(option);
  value.kind = kindOf(value, option);
  value.repeats = option.get_items_expected_max() > 1;
  return value;
}

TreeOption treeOption(const CLI::Option& option) {
  TreeOption tree;
  for (const std::string& name : option.get_snames()) tree.names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) tree.names.push_back("--" + name);
  tree.help = option.get_description();
  tree.value = valueOf(option, option.get_option_text());
  return tree;
}

std::vector<std::string> examplesIn(const std::string& footer) {
  std::vector<std::string> examples;
  for (const std::string_view line : split(footer, '\n')) {
    if (line.starts_with("  glossmill-cli")) examples.emplace_back(line.substr(2));
  }
  return examples;
}

std::vector<TreeOption> optionsOf(const CLI::App& app) {
  std::vector<TreeOption> options;
  for (const CLI::Option* option : app.get_options()) {
    if (!option->get_positional()) options.push_back(treeOption(*option));
  }
  return options;
}

TreeCommand treeCommand(const CLI::App& command) {
  TreeCommand tree{
      command.get_name(), command.get_description(), {}, optionsOf(command), examplesIn(command.get_footer())};
  for (const CLI::Option* option : command.get_options()) {
    if (!option->get_positional()) continue;
    tree.arguments.push_back(
        {option->get_description(), valueOf(*option, option->get_name(true)), option->get_required()});
  }
  return tree;
}

}  // namespace

CommandTree commandTree(const CLI::App& program) {
  CommandTree tree{program.get_name(), program.get_description(), optionsOf(program), {}};
  const auto isShown = [](const CLI::App* command) { return !command->get_group().empty(); };
  for (const CLI::App* command : program.get_subcommands(isShown)) tree.commands.push_back(treeCommand(*command));
  return tree;
}

}  // namespace glossmill
