#include "cli/PrintCommand.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/shell/Completions.h"

namespace glossmill {

namespace {

std::string printed(const std::string& what, const CommandTree& tree, const std::vector<ExitCodeText>& exitCodes) {
  if (what == "bash") return bashCompletion(tree);
  if (what == "zsh") return zshCompletion(tree);
  if (what == "fish") return fishCompletion(tree);
  return manPage(tree, exitCodes, GLOSSMILL_VERSION);
}

}  // namespace

void addPrintCommand(CLI::App& program, TypedCommand& typed, const std::vector<ExitCodeText>& exitCodes) {
  const auto what = std::make_shared<std::string>();
  CLI::App& command = *program.add_subcommand("print", "Print what belongs to the program: bash, zsh, fish or man");
  command.group("");
  command.add_option("WHAT", *what, "Completions for a shell, or the manual page")
      ->required()
      ->check(CLI::IsMember({"bash", "zsh", "fish", "man"}))
      ->option_text(" ");
  command.final_callback([&program, &typed, what, exitCodes] {
    typed.run = [&program, what, exitCodes](Console& console) {
      console.data(printed(*what, commandTree(program), exitCodes));
      return ExitCode::Fine;
    };
  });
}

}  // namespace glossmill
