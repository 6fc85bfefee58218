#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "app/AppDelegate.h"
#include "cli/Console.h"
#include "cli/ExitCode.h"
#include "cli/JsonWriter.h"
#include "cli/ProjectChoice.h"
#include "cli/ReportingFiles.h"
#include "cli/WritingOptions.h"
#include "host/HeadlessHost.h"
#include "settings/ReadingChoice.h"

namespace glossmill {

/// The whole application without a window, with one project open in it: what a person would see in windows goes to the
/// console. Main thread.
class ProjectSession {
 public:
  struct Options {
    bool keepsLogs = false;  ///< both of them, to be asked for afterwards
    bool dryRun = false;
    bool leavesDirectoriesToSave = false;  ///< of new languages
    /// Of a command that writes the project: it is kept for this process from the first read on. Outlives the session.
    const WritingOptions* writing = nullptr;
    std::string command = {};  ///< by which words it was started, for the record of its saves

    /// Whether everything is only said that would be written.
    bool pretends() const { return dryRun || (writing && writing->dryRun); }
  };

  /// `console` outlives the session.
  ProjectSession(Console& console, const Options& options);

  /// Opens the project in the directory and waits for the scan. Anything but Fine has been explained on the console.
  ExitCode open(const ProjectChoice& choice);
  /// The same for a directory that has to hold a package; `without` when there is none.
  ExitCode openPackage(const ProjectChoice& choice, ExitCode without = ExitCode::Unusable);
  /// Waits for the long job that was just started; Interrupted when Ctrl+C was pressed meanwhile.
  ExitCode finishJob();
  /// Saves every language and prints what became of each file; Unusable when one could not be written.
  ExitCode saveProject();

  ProjectWindowController& project() { return *m_delegate->projectWindowController(); }
  const ProjectWindowController& project() const { return *m_delegate->projectWindowController(); }
  ReportingFiles& files() { return m_files; }
  /// What the opened project says of its checks.
  const CheckSettings& checks() const { return m_checks; }
  /// Where its settings lie.
  const FileUrl& settingsDirectory() const { return m_settingsDirectory; }
  Console& console() const { return m_console; }

  // Empty unless the session was told to keep them. The log is null as long as nothing was logged.
  const LogWindowController* log() const { return m_delegate->logWindowController(); }
  const MessageList& systemLog() const { return m_systemLog; }

  /// What a command has to say beside the files: in front of them as text, or as members of its JSON.
  void addCounts(const std::string& text, const Json& counts);
  /// Prints what was written, or would have been, one file a line, or as JSON where that is wanted.
  void reportFiles() const;

 private:
  Host hostParts();
  ExitCode read(const ProjectChoice& choice);
  void sumUpScan();
  void offerOtherRules();
  ExitCode openAt(const FileUrl& directory, const ReadingChoice& reading);
  ProjectOptions projectOptions() const;
  ExitCode keepForWriting(const FileUrl& directory);
  void mentionUnfinishedSave(const FileUrl& directory);
  void passMessagesOn();
  void takeSystemLogLine(const Message& line);
  AlertAnswer answerAlert(const AlertRequest& alert);
  void tick();
  std::string progressText() const;

  Console& m_console;
  const Options m_options;
  MessageList m_systemLog;
  std::chrono::steady_clock::time_point m_jobStart;
  HeadlessHost m_host;
  ReportingFiles m_files;
  std::optional<ProjectLock> m_lock;
  CheckSettings m_checks;
  bool m_sumsUpLog = false;  ///< what is logged now is told as a sum, later
  FileUrl m_settingsDirectory;
  std::string m_countsText;
  Json m_counts = Json::object();
  /// Never deleted: giving a large project's memory back piece by piece would take longer than ending the program does.
  AppDelegate* const m_delegate;
};

}  // namespace glossmill
