#include "cli/shell/Completions.h"

namespace glossmill {

namespace {

constexpr std::string_view kZshLanguages = R"sh(
_glossmill_cli_languages() {
  local word directory
  local -a codes
  for word in ${words[2,-1]}; do
    directory=${~word}
    [[ -d $directory ]] || continue
    codes=(${(f)"$(find $directory -maxdepth 6 -type d -name '*.lproj' -prune 2>/dev/null |
      sed 's|.*/||; s|\.lproj$||; s|^English$|en|' | sort -u)"})
    break
  done
  compadd -a codes
}
)sh";

/// A colon would end what _arguments takes for a text, a bracket its brackets.
std::string zshText(std::string_view text) {
  std::string escaped;
  for (const char byte : text) {
    if (byte == ':' || byte == '[' || byte == ']' || byte == '\\') escaped += '\\';
    escaped += byte;
  }
  return escaped;
}

std::string actionOf(const TypedValue& value) {
  switch (value.kind) {
    case ValueKind::File:
      return "_files";
    case ValueKind::Directory:
      return "_files -/";
    case ValueKind::Language:
      return "_glossmill_cli_languages";
    case ValueKind::Choice:
      return "(" + joined(value.choices, " ") + ")";
    case ValueKind::Choices:
      return "_values -s , name " + joined(value.choices, " ");
    case ValueKind::None:
    case ValueKind::Other:
      break;
  }
  return " ";
}

std::string optionSpec(const TreeOption& option) {
  const bool isLast = option.names.back() == "--help" || option.names.back() == "--version";
  std::string value;
  if (option.value.kind != ValueKind::None) {
    value = ":" + zshText(option.value.shown) + ":" + actionOf(option.value);
  }
  const std::string rest = "[" + zshText(option.help) + "]" + value;
  const std::string excluded = isLast ? "(- *)" : option.value.repeats ? "*" : "(" + joined(option.names, " ") + ")";
  std::string specs;
  for (const std::string& name : option.names) {
    const bool takesValue = option.value.kind != ValueKind::None;
    const std::string_view joint = !takesValue ? "" : name.starts_with("--") ? "=" : "+";
    specs += " \\\n        " + shellQuoted(excluded + name + std::string(joint) + rest);
  }
  return specs;
}

std::string argumentSpec(const TreeArgument& argument, std::size_t number) {
  const std::string place = argument.value.repeats ? "*" : std::to_string(number);
  return " \\\n        " + shellQuoted(place + (argument.isRequired || argument.value.repeats ? ":" : "::") +
                                       zshText(argument.value.shown) + ":" + actionOf(argument.value));
}

std::string commandCase(const TreeCommand& command) {
  std::string text = "    " + command.name + ")\n      _arguments -s";
  for (const TreeOption& option : command.options) text += optionSpec(option);
  for (std::size_t at = 0; at < command.arguments.size(); ++at) text += argumentSpec(command.arguments[at], at + 1);
  return text + "\n      ;;\n";
}

}  // namespace

std::string zshCompletion(const CommandTree& tree) {
  std::string commands;
  std::string cases;
  for (const TreeCommand& command : tree.commands) {
    commands += "    " + shellQuoted(command.name + ":" + zshText(command.help)) + "\n";
    cases += commandCase(command);
  }
  std::string options;
  for (const TreeOption& option : tree.options) options += optionSpec(option);
  return "#compdef glossmill-cli\n# Completes glossmill-cli in zsh; made from its commands.\n" +
         std::string(kZshLanguages) + "\n_glossmill_cli_behind_command() {\n  case $words[1] in\n" + cases +
         "  esac\n}\n\n_glossmill_cli() {\n  local state line\n  local -a commands=(\n" + commands +
         "  )\n  _arguments -C -s" + options +
         " \\\n        '1:command:->command' '*::argument:->argument'\n  case $state in\n"
         "    command) _describe command commands ;;\n    argument) _glossmill_cli_behind_command ;;\n  esac\n}\n\n"
         "_glossmill_cli \"$@\"\n";
}

}  // namespace glossmill
