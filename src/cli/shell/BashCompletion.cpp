#include "cli/shell/Completions.h"

namespace glossmill {

namespace {

constexpr std::string_view kBashFunctions = R"sh(
_glossmill_cli_languages() {
  local word directory
  for word in "${COMP_WORDS[@]:1}"; do
    directory=${word/#\~\//$HOME/}
    [[ -d $directory ]] || continue
    find "$directory" -maxdepth 6 -type d -name '*.lproj' -prune 2>/dev/null |
      sed 's|.*/||; s|\.lproj$||; s|^English$|en|' | sort -u
    return
  done
}

# _glossmill_cli_value KIND: completes a value or an argument.
_glossmill_cli_value() {
  local words=${1#*:} chosen
  case $1 in
    one:*) COMPREPLY=($(compgen -W "${words//|/ }" -- "$current")) ;;
    list:*)
      chosen=${current%"${current##*,}"}
      COMPREPLY=($(compgen -P "$chosen" -W "${words//|/ }" -- "${current##*,}"))
      compopt -o nospace
      ;;
    language) COMPREPLY=($(compgen -W "$(_glossmill_cli_languages)" -- "$current")) ;;
    directory) compopt -o dirnames ;;
    file) compopt -o default ;;
  esac
}

# _glossmill_cli_kind OPTION: the kind of its value; fails for an option without one.
_glossmill_cli_kind() {
  local value
  for value in "${values[@]}"; do
    [[ ${value%%=*} == "$1" ]] && kind=${value#*=} && return
  done
  return 1
}

_glossmill_cli() {
  local current=${COMP_WORDS[COMP_CWORD]} at=1 position=0 kind command='' option=''
  local -a options values arguments
  COMPREPLY=()
  [[ $current == = ]] && current=
  while ((at < COMP_CWORD)) && [[ ${COMP_WORDS[at]} == -* ]]; do ((at++)); done
  ((at < COMP_CWORD)) && command=${COMP_WORDS[at]}
  _glossmill_cli_command "$command"
  for ((at++; at < COMP_CWORD; at++)); do
    if [[ ${COMP_WORDS[at]} == = ]]; then
      continue
    elif [[ $option ]]; then
      option=
    elif [[ ${COMP_WORDS[at]} == -* ]]; then
      _glossmill_cli_kind "${COMP_WORDS[at]}" && option=${COMP_WORDS[at]}
    else
      ((position++))
    fi
  done
  if [[ $option ]]; then
    _glossmill_cli_kind "$option" && _glossmill_cli_value "$kind"
  elif [[ $current == -* ]]; then
    COMPREPLY=($(compgen -W "${options[*]}" -- "$current"))
  elif [[ $command ]]; then
    ((position < ${#arguments[@]})) || position=$((${#arguments[@]} - 1))
    _glossmill_cli_value "${arguments[position]}"
  else
    COMPREPLY=($(compgen -W "$commands" -- "$current"))
  fi
}

complete -F _glossmill_cli glossmill-cli
)sh";

std::string kindText(const TypedValue& value) {
  switch (value.kind) {
    case ValueKind::File:
      return "file";
    case ValueKind::Directory:
      return "directory";
    case ValueKind::Language:
      return "language";
    case ValueKind::Choice:
      return "one:" + joined(value.choices, "|");
    case ValueKind::Choices:
      return "list:" + joined(value.choices, "|");
    case ValueKind::None:
    case ValueKind::Other:
      break;
  }
  return "other";
}

std::string allNames(const std::vector<TreeOption>& options) {
  std::string names;
  for (const TreeOption& option : options) names += (names.empty() ? "" : " ") + joined(option.names, " ");
  return names;
}

std::string caseText(std::string_view pattern, const std::vector<TreeOption>& options,
                     const std::vector<TreeArgument>& arguments) {
  std::string values;
  for (const TreeOption& option : options) {
    if (option.value.kind == ValueKind::None) continue;
    for (const std::string& name : option.names) values += " " + shellQuoted(name + "=" + kindText(option.value));
  }
  std::string kinds;
  for (const TreeArgument& argument : arguments) kinds += (kinds.empty() ? "" : " ") + kindText(argument.value);
  return "    " + std::string(pattern) + ")\n      options=(" + allNames(options) + ")\n      values=(" +
         (values.empty() ? "" : values.substr(1)) + ")\n      arguments=(" + kinds + ")\n      ;;\n";
}

}  // namespace

std::string bashCompletion(const CommandTree& tree) {
  std::string names;
  std::string cases;
  for (const TreeCommand& command : tree.commands) {
    names += (names.empty() ? "" : " ") + command.name;
    cases += caseText(command.name, command.options, command.arguments);
  }
  return "# Completes glossmill-cli in bash; made from its commands.\n# shellcheck shell=bash disable=SC2034,SC2207\n\n"
         "# _glossmill_cli_command COMMAND: what can be typed behind it.\n_glossmill_cli_command() {\n  commands='" +
         names + "'\n  case $1 in\n" + cases + caseText("*", tree.options, {}) + "  esac\n}\n" +
         std::string(kBashFunctions);
}

}  // namespace glossmill
