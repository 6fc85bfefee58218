#include "cli/shell/ManPage.h"

#include <algorithm>

#include "cli/shell/Completions.h"

namespace glossmill {

namespace {

/// Of what the page says that does not come from the commands.
constexpr std::string_view kDate = "2026-11-22";

constexpr std::string_view kDescription =
    R"(Reads the Xcode project in the directory
.I DIR
and joins the localized strings of its sources with the strings files of every language.
Data go to the standard output, messages to the standard error stream.
Messages of a scan are summed up by kind, unless
.B \-\-log
asks for every line.
)";

constexpr std::string_view kFiles = R"(.SH ENVIRONMENT
.TP
.B NO_COLOR
If it is set and not empty, nothing is coloured.
.TP
.B XDG_STATE_HOME
Where saved versions and edits are kept;
.I ~/.local/state
where it is not set.
.SH FILES
.TP
.I .glossmill.json
In the directory of a project: how that project is read and checked.
.TP
.I $XDG_STATE_HOME/glossmill/projects/
Saved versions and edits that no save wrote yet, for each project.
)";

constexpr std::string_view kSeeAlso = R"(.SH SEE ALSO
.BR glossmill (1)
)";

/// A hyphen that somebody may copy is a minus; a dot or a quote would begin a request at the start of a line.
std::string roff(std::string_view text) {
  std::string escaped;
  for (const char byte : text) {
    if (byte == '\\') {
      escaped += "\\e";
    } else if (byte == '-') {
      escaped += "\\-";
    } else {
      escaped += byte;
    }
  }
  return (escaped.starts_with('.') || escaped.starts_with('\'') ? "\\&" : "") + escaped;
}

std::string sentence(std::string_view help) {
  return roff(help) + (help.ends_with('.') ? "\n" : ".\n");
}

bool isSame(const TreeOption& one, const TreeOption& other) {
  return one.names == other.names;
}

bool isCommon(const CommandTree& tree, const TreeOption& option) {
  return std::ranges::any_of(tree.options, [&option](const TreeOption& common) { return isSame(common, option); });
}

std::string optionText(const TreeOption& option) {
  std::string text = ".TP\n";
  for (const std::string& name : option.names) {
    text += (&name == &option.names.front() ? "\\fB" : ", \\fB") + roff(name) + "\\fR";
  }
  if (option.value.kind != ValueKind::None) text += " \\fI" + roff(option.value.shown) + "\\fR";
  return text + "\n" + sentence(option.help);
}

std::string usageText(const TreeCommand& command) {
  std::string text = "\\fBglossmill\\-cli " + roff(command.name) + "\\fR [\\fIOPTION\\fR...]";
  for (const TreeArgument& argument : command.arguments) {
    const std::string shown = "\\fI" + roff(argument.value.shown) + "\\fR" + (argument.value.repeats ? "..." : "");
    text += argument.isRequired ? " " + shown : " [" + shown + "]";
  }
  return text + "\n";
}

std::string commandText(const CommandTree& tree, const TreeCommand& command) {
  std::string text = ".SS " + roff(command.name) + "\n" + usageText(command) + ".PP\n" + sentence(command.help);
  for (const TreeArgument& argument : command.arguments) {
    text += ".TP\n\\fI" + roff(argument.value.shown) + "\\fR\n" + sentence(argument.help);
  }
  for (const TreeOption& option : command.options) {
    if (!isCommon(tree, option)) text += optionText(option);
  }
  return text;
}

std::string examplesText(const CommandTree& tree) {
  std::string text = ".SH EXAMPLES\n.nf\n";
  for (const TreeCommand& command : tree.commands) {
    for (const std::string& example : command.examples) text += roff(example) + "\n";
  }
  return text + ".fi\n";
}

}  // namespace

std::string manPage(const CommandTree& tree, const std::vector<ExitCodeText>& exitCodes, std::string_view version) {
  std::string text = ".TH GLOSSMILL\\-CLI 1 \"" + std::string(kDate) + "\" \"Glossmill " + std::string(version) +
                     "\" \"User Commands\"\n.SH NAME\nglossmill\\-cli \\- manage the translations of Xcode projects on "
                     "the command line\n.SH SYNOPSIS\n\\fBglossmill\\-cli\\fR \\fICOMMAND\\fR [\\fIOPTION\\fR...] "
                     "\\fIDIR\\fR\n.SH DESCRIPTION\n" +
                     std::string(kDescription) + ".SH OPTIONS\nEvery command takes these, but for the version.\n";
  for (const TreeOption& option : tree.options) text += optionText(option);
  text += ".SH COMMANDS\n";
  for (const TreeCommand& command : tree.commands) text += commandText(tree, command);
  text += ".SH EXIT STATUS\n";
  for (const ExitCodeText& exit : exitCodes)
    text += ".TP\n.B " + std::string(exit.code) + "\n" + sentence(exit.meaning);
  return text + std::string(kFiles) + examplesText(tree) + std::string(kSeeAlso);
}

}  // namespace glossmill
