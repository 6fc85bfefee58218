#include "cli/HistoryCommand.h"

#include <memory>
#include <optional>

#include "cli/DisplayText.h"
#include "cli/TextTable.h"
#include "host/Paths.h"
#include "host/PosixFiles.h"
#include "host/PosixSaveDisk.h"
#include "safety/EntryCounts.h"
#include "safety/SavedVersions.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

using Align = TextTable::Align;

struct HistoryOptions {
  std::string directory;
};

std::string countOr(const std::optional<std::uint64_t>& count) {
  return count ? std::to_string(*count) : "unknown";
}

std::vector<TextTable::Cell> rowOf(const SavedVersion& version) {
  const EntryCounts counts = entryCounts(version.manifest);
  return {{version.id},
          {version.isFinished ? printableLine(version.manifest.command) : "unfinished: " + version.manifest.command,
           version.isFinished ? Paint::Plain : Paint::Gap},
          {std::to_string(version.manifest.files.size())},
          {countOr(counts.before)},
          {std::to_string(counts.after)},
          {countOr(counts.notWritten())}};
}

std::string historyTable(const std::vector<SavedVersion>& versions, const Console& console) {
  TextTable table({Align::Left, Align::Left, Align::Right, Align::Right, Align::Right, Align::Right});
  table.addRow({{"Save", Paint::Heading},
                {"By", Paint::Heading},
                {"Files", Paint::Heading},
                {"Entries before", Paint::Heading},
                {"After", Paint::Heading},
                {"Not written again", Paint::Heading}});
  for (const SavedVersion& version : versions) table.addRow(rowOf(version));
  return table.text(console);
}

ExitCode showHistory(const HistoryOptions& options, Console& console) {
  PosixFiles files;
  PosixSaveDisk disk;
  const FileUrl project = absoluteUrl(options.directory);
  if (files.kindOf(project) != EntryKind::Directory) {
    console.error("there is no directory " + inQuotes(options.directory));
    return ExitCode::Unusable;
  }
  const std::vector<SavedVersion> versions = SavedVersions(files, disk, project).list();
  if (versions.empty()) {
    console.message("No save of this project is kept.");
  } else {
    console.data(historyTable(versions, console));
  }
  return ExitCode::Fine;
}

}  // namespace

void addHistoryCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<HistoryOptions>();
  CLI::App& command =
      addCommand(program, typed, {"history", "List the saves that can be taken back", "~/Projects/Harbour"},
                 [options](Console& console) { return showHistory(*options, console); });
  addDirectory(command, options->directory);
}

}  // namespace glossmill
