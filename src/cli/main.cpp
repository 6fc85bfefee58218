#include <CLI/CLI.hpp>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "cli/AcceptCommand.h"
#include "cli/AddLanguageCommand.h"
#include "cli/CheckCommand.h"
#include "cli/Console.h"
#include "cli/DisplayText.h"
#include "cli/ExitCode.h"
#include "cli/ExportCommand.h"
#include "cli/FillCommand.h"
#include "cli/HistoryCommand.h"
#include "cli/ImportCommand.h"
#include "cli/InitCommand.h"
#include "cli/PrintCommand.h"
#include "cli/PruneCommand.h"
#include "cli/RecoverCommand.h"
#include "cli/RestoreCommand.h"
#include "cli/SaveCommand.h"
#include "cli/ScanCommand.h"
#include "cli/SetCommand.h"
#include "cli/StatusCommand.h"
#include "cli/TypedCommand.h"
#include "host/AllocatorSettings.h"
#include "host/FileSizeLimit.h"

namespace glossmill {

namespace {

const std::vector<ExitCodeText>& exitCodes() {
  static const std::vector<ExitCodeText> kExitCodes = {
      {"0", "fine"},
      {"1", "a check failed"},
      {"2", "wrong usage, or a language that the project does not have"},
      {"3", "the directory or a file cannot be used"},
      {"130", "ended by Ctrl+C"},
  };
  return kExitCodes;
}

std::string exitCodesText() {
  constexpr std::size_t kColumns = 5;
  std::string text = "\n\nExit codes:";
  for (const ExitCodeText& exit : exitCodes()) {
    text.append("\n  ").append(exit.code).append(kColumns - exit.code.size(), ' ').append(exit.meaning);
  }
  return text;
}

void addEverything(CLI::App& program, TypedCommand& typed) {
  program.set_version_flag("--version", "glossmill-cli " GLOSSMILL_VERSION);
  program.set_help_flag("-h,--help", "Print this help");
  program.require_subcommand(1);
  program.get_formatter()->label("SUBCOMMAND", "COMMAND");
  program.footer("Examples:");
  addLoudness(program, typed);
  addInitCommand(program, typed);
  addScanCommand(program, typed);
  addStatusCommand(program, typed);
  addCheckCommand(program, typed);
  addAcceptCommand(program, typed);
  addSaveCommand(program, typed);
  addExportCommand(program, typed);
  addImportCommand(program, typed);
  addFillCommand(program, typed);
  addSetCommand(program, typed);
  addAddLanguageCommand(program, typed);
  addPruneCommand(program, typed);
  addHistoryCommand(program, typed);
  addRestoreCommand(program, typed);
  addRecoverCommand(program, typed);
  program.footer(program.get_footer() + exitCodesText());
  addPrintCommand(program, typed, exitCodes());
}

std::string commandProblem(const CLI::App& program) {
  const std::vector<std::string> unknown = program.remaining();
  return unknown.empty() ? "no command was given" : "there is no command " + inQuotes(unknown.front());
}

/// Help and the version are no errors, though they end the reading of the command line like one.
ExitCode explain(const CLI::App& program, const CLI::ParseError& problem, Console& console) {
  if (problem.get_exit_code() == 0) {
    program.exit(problem);
    return ExitCode::Fine;
  }
  const auto typed = program.get_subcommands();
  console.error(typed.empty() ? commandProblem(program) : problem.what());
  const std::string command = typed.empty() ? "" : typed.front()->get_name() + " ";
  console.message("Try: glossmill-cli " + command + "--help");
  return ExitCode::WrongUsage;
}

ExitCode run(int count, const char* const* arguments, Console& console) {
  CLI::App program("Keeps the translations of an Xcode project complete.", "glossmill-cli");
  TypedCommand typed;
  addEverything(program, typed);
  try {
    program.parse(count, arguments);
  } catch (const CLI::ParseError& problem) {
    return explain(program, problem, console);
  }
  console.setLoudness(typed.loudness());
  const ExitCode code = typed.run(console);
  if (console.finish()) return code;
  console.error("cannot write to standard output");
  return ExitCode::Unusable;
}

}  // namespace

}  // namespace glossmill

int main(int argc, char** argv) {
  glossmill::setAllocatorForScans();
  glossmill::makeFileSizeLimitAnError();
  glossmill::Console console;
  try {
    return static_cast<int>(glossmill::run(argc, argv, console));
  } catch (const std::bad_alloc&) {
    console.error("there is not enough memory");
  } catch (const std::exception& problem) {
    console.error(problem.what());
  }
  return static_cast<int>(glossmill::ExitCode::Unusable);
}
