#include "cli/RestoreCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ctime>
#include <memory>
#include <optional>

#include "cli/DisplayText.h"
#include "cli/WritingOptions.h"
#include "cli/WritingReport.h"
#include "host/Paths.h"
#include "safety/Restore.h"
#include "safety/UnfinishedSave.h"
#include "text/PrintableText.h"

namespace glossmill {

namespace {

struct RestoreOptions {
  std::string directory;
  std::string from;
  std::vector<std::string> files;
  bool finish = false;
  WritingOptions writing;
};

/// One run of the command, on the disk itself: what a project means does not matter here.
class RestoreRun {
 public:
  RestoreRun(const RestoreOptions& options, Console& console)
      : m_options(options),
        m_console(console),
        m_project(absoluteUrl(options.directory)),
        m_versions(m_files, m_disk, m_project),
        m_lock(m_files, m_disk, m_project) {}

  ExitCode run() {
    if (m_files.kindOf(m_project) != EntryKind::Directory) {
      m_console.error("there is no directory " + inQuotes(m_options.directory));
      return ExitCode::Unusable;
    }
    const ExitCode locked = takeLock(m_lock, m_project, m_options.writing, m_console);
    if (locked != ExitCode::Fine) return locked;
    m_unfinished = findUnfinishedSave(m_files, m_disk, m_versions);
    return m_options.finish ? finish() : takeBack();
  }

 private:
  ExitCode finish();
  void printFinished();
  ExitCode takeBack();
  ExitCode write(const SavedVersion& version, const RestorePlan& plan);
  std::optional<SavedVersion> wantedVersion();
  std::vector<FileUrl> wantedFiles();
  SaveReport save(const SavedVersion& version, const std::vector<FileText>& texts);
  void print(const SaveReport& report);
  void printLine(const SavedLanguage& language);
  std::string shown(const FileUrl& file) { return std::string(shownPath(resolvedProject(), file)); }
  FileUrl resolvedProject();

  const RestoreOptions& m_options;
  Console& m_console;
  FileUrl m_project;
  PosixFiles m_files;
  PosixSaveDisk m_disk;
  SavedVersions m_versions;
  ProjectLock m_lock;
  std::optional<SavedVersion> m_unfinished;
};

FileUrl RestoreRun::resolvedProject() {
  const Result<FileUrl> resolved = m_disk.resolve(m_project);
  return resolved ? resolved.value() : m_project;
}

ExitCode RestoreRun::finish() {
  if (!m_unfinished) {
    m_console.message("There is no unfinished save.");
    return ExitCode::Fine;
  }
  printFinished();
  if (m_options.writing.dryRun) return ExitCode::Fine;
  const Outcome finished = finishSave(m_files, m_disk, m_versions, *m_unfinished);
  if (finished) return ExitCode::Fine;
  m_console.error("cannot finish the save: " + finished.error().sentence);
  return ExitCode::Unusable;
}

void RestoreRun::printFinished() {
  const bool pretends = m_options.writing.dryRun;
  if (m_options.writing.json) {
    SaveReport report;
    for (const SavedFile& file : m_unfinished->manifest.files) {
      FileOutcome outcome;
      outcome.kind = FileOutcome::Kind::Changed;
      report.languages.push_back({file.language, file.file, outcome, file.entriesBefore, file.entriesAfter});
    }
    return print(report);
  }
  for (const SavedFile& file : m_unfinished->manifest.files) {
    m_console.data((pretends ? "would be finished  " : "finished  ") + printableLine(shown(file.file)) + "\n");
  }
}

std::optional<SavedVersion> RestoreRun::wantedVersion() {
  if (m_options.from.empty() && m_unfinished) return m_unfinished;
  const std::vector<SavedVersion> versions = m_versions.list();
  const auto found = std::find_if(versions.begin(), versions.end(), [this](const SavedVersion& version) {
    return m_options.from.empty() || version.id == m_options.from;
  });
  return found == versions.end() ? std::nullopt : std::optional(*found);
}

std::vector<FileUrl> RestoreRun::wantedFiles() {
  std::vector<FileUrl> wanted;
  for (const std::string& name : m_options.files) {
    const FileUrl typed = absoluteUrl(name);
    const Result<FileUrl> resolved = m_disk.resolve(typed);
    wanted.push_back(resolved ? resolved.value() : typed);
  }
  return wanted;
}

ExitCode RestoreRun::takeBack() {
  const std::optional<SavedVersion> version = wantedVersion();
  if (!version) {
    m_console.error(m_options.from.empty() ? "no save of this project is kept"
                                           : "there is no save " + inQuotes(m_options.from));
    return m_options.from.empty() ? ExitCode::Unusable : ExitCode::WrongUsage;
  }
  if (m_unfinished && (version->id != m_unfinished->id || !m_options.files.empty())) {
    m_console.error("a save of this project was cut short; finish it or take it back as a whole first");
    return ExitCode::Unusable;
  }
  const RestorePlan plan =
      planRestore(m_files, m_versions, *version, wantedFiles(), m_options.writing.allows("changed"));
  for (const FileUrl& lost : plan.lost) {
    m_console.error("what " + inQuotes(shown(lost)) + " held is not kept any more");
  }
  if (!plan.lost.empty()) return ExitCode::Unusable;
  if (plan.changed.empty() || m_options.writing.allows("changed")) return write(*version, plan);
  for (const FileUrl& changed : plan.changed) m_console.error(inQuotes(shown(changed)) + " was edited since the save");
  m_console.error("nothing was written; to write all the same: --allow changed");
  return ExitCode::Unusable;
}

SaveReport RestoreRun::save(const SavedVersion& version, const std::vector<FileText>& texts) {
  const SaveOrder order{m_project,
                        GLOSSMILL_VERSION,
                        "restore --from " + version.id,
                        std::time(nullptr),
                        m_options.writing.allowance(),
                        m_options.writing.dryRun,
                        m_options.writing.maxDropped};
  const SaveResult result = SaveTransaction(m_files, m_disk, order).save(texts);
  SaveReport report{result.refusal, {}, result.id};
  for (std::size_t at = 0; at < result.files.size(); ++at) {
    const FileText& text = texts[at];
    report.languages.push_back({text.language, text.file, result.files[at], text.entriesBefore, text.entriesAfter});
  }
  return report;
}

ExitCode RestoreRun::write(const SavedVersion& version, const RestorePlan& plan) {
  const SaveReport report = save(version, plan.texts);
  print(report);
  if (report.refusal) return ExitCode::Unusable;
  if (m_options.writing.dryRun) return ExitCode::Fine;
  const bool allWritten = std::all_of(report.languages.begin(), report.languages.end(),
                                      [](const SavedLanguage& language) { return language.outcome.isWritten(); });
  if (!allWritten) return ExitCode::Unusable;
  if (version.isFinished || closeSave(m_disk, m_versions, version)) return ExitCode::Fine;
  m_console.error("the unfinished save could not be closed");
  return ExitCode::Unusable;
}

void RestoreRun::print(const SaveReport& report) {
  const FileUrl project = resolvedProject();
  const std::vector<WrittenFile> others;
  const Writing writing{project, others, report, m_options.writing.dryRun};
  if (m_options.writing.json) return printWritingJson(writing, Json::object(), m_console);
  for (const SavedLanguage& language : report.languages) printLine(language);
  printRefusalAndLosses(writing, m_console);
}

void RestoreRun::printLine(const SavedLanguage& language) {
  const std::string file = shown(language.file);
  if (!language.outcome.isWritten()) {
    return m_console.error("cannot write " + inQuotes(file) + ": " + language.outcome.error.sentence);
  }
  const bool isRemoved = language.outcome.kind == FileOutcome::Kind::Removed;
  const std::string verb = isRemoved ? "removed" : "restored";
  m_console.data((m_options.writing.dryRun ? "would be " + verb : verb) + "  " + printableLine(file) + "\n");
}

}  // namespace

void addRestoreCommand(CLI::App& program, TypedCommand& typed) {
  const auto options = std::make_shared<RestoreOptions>();
  CLI::App& command = addCommand(
      program, typed,
      {"restore", "Bring back what files held before a save", "~/Projects/Harbour --from 2026-11-21T16-05-00Z"},
      [options](Console& console) { return RestoreRun(*options, console).run(); });
  addDirectory(command, options->directory);
  command.add_option("FILE", options->files, "Only these files; all of the save without them")->option_text(" ");
  command.add_option("--from", options->from, "Which save, as history names it; the newest without it")
      ->option_text("SAVE");
  addFlag(command, "--finish", options->finish, "Finish a save that was cut short instead");
  addWritingOptions(command, options->writing);
}

}  // namespace glossmill
