#include "cli/shell/Completions.h"

namespace glossmill {

namespace {

constexpr std::string_view kFishFunctions = R"sh(
function __glossmill_cli_languages
    for word in (commandline -opc)[2..-1]
        set -l directory (string replace -r '^~/' "$HOME/" -- $word)
        test -d "$directory"; or continue
        find "$directory" -maxdepth 6 -type d -name '*.lproj' -prune 2>/dev/null |
            sed 's|.*/||; s|\.lproj$||; s|^English$|en|' | sort -u
        return
    end
end

# What is chosen already, and each other word behind it.
function __glossmill_cli_list
    set -l chosen (string replace -r '[^,]*$' '' -- (string replace -r '^--[a-z-]+=' '' -- (commandline -ct)))
    printf '%s\n' $chosen$argv
end

complete -c glossmill-cli -f
)sh";

/// In single quotes fish takes a backslash for itself only in front of a quote or another one.
std::string fishQuoted(std::string_view text) {
  std::string quoted = "'";
  for (const char byte : text) {
    if (byte == '\'' || byte == '\\') quoted += '\\';
    quoted += byte;
  }
  return quoted + "'";
}

std::string valueText(const TypedValue& value) {
  switch (value.kind) {
    case ValueKind::None:
      return "";
    case ValueKind::File:
      return " -r -F";
    case ValueKind::Directory:
      return " -x -a '(__fish_complete_directories)'";
    case ValueKind::Language:
      return " -x -a '(__glossmill_cli_languages)'";
    case ValueKind::Choice:
      return " -x -a " + fishQuoted(joined(value.choices, " "));
    case ValueKind::Choices:
      return " -x -a " + fishQuoted("(__glossmill_cli_list " + joined(value.choices, " ") + ")");
    case ValueKind::Other:
      break;
  }
  return " -x";
}

std::string optionLine(const std::string& condition, const TreeOption& option) {
  std::string line = "complete -c glossmill-cli -n " + fishQuoted(condition);
  for (const std::string& name : option.names) {
    line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  }
  return line + valueText(option.value) + " -d " + fishQuoted(option.help) + "\n";
}

/// Of arguments only directories and files are completed.
std::string argumentLine(const std::string& condition, const TreeCommand& command) {
  bool takesFiles = false;
  bool takesDirectories = false;
  for (const TreeArgument& argument : command.arguments) {
    takesFiles = takesFiles || argument.value.kind == ValueKind::File;
    takesDirectories = takesDirectories || argument.value.kind == ValueKind::Directory;
  }
  const std::string line = "complete -c glossmill-cli -n " + fishQuoted(condition);
  if (takesFiles) return line + " -F\n";
  return takesDirectories ? line + " -a '(__fish_complete_directories)'\n" : "";
}

}  // namespace

std::string fishCompletion(const CommandTree& tree) {
  const std::string noCommand = "__fish_use_subcommand";
  std::string text = "# Completes glossmill-cli in fish; made from its commands.\n" + std::string(kFishFunctions);
  for (const TreeOption& option : tree.options) text += optionLine(noCommand, option);
  for (const TreeCommand& command : tree.commands) {
    text +=
        "complete -c glossmill-cli -n " + noCommand + " -a " + command.name + " -d " + fishQuoted(command.help) + "\n";
  }
  for (const TreeCommand& command : tree.commands) {
    const std::string condition = "__fish_seen_subcommand_from " + command.name;
    text += "\n";
    for (const TreeOption& option : command.options) text += optionLine(condition, option);
    text += argumentLine(condition, command);
  }
  return text;
}

}  // namespace glossmill
