#include "cli/ProjectSession.h"

#include "cli/Interrupt.h"
#include "cli/Paths.h"

namespace glossmill {

namespace {

using Clock = std::chrono::steady_clock;

/// Jobs that end sooner show no progress.
constexpr std::chrono::milliseconds kLongJob{500};
constexpr std::string_view kRejectedCall = "Ignoring bad formatted String:";

std::string inQuotes(std::string_view text) {
  return std::string("\"").append(text).append("\"");
}

Outcome usableDirectory(Files& files, const FileUrl& directory) {
  if (directory.empty()) return Error{"The directory does not exist."};
  if (files.kindOf(directory) == EntryKind::File) return Error{"It is not a directory."};
  const auto entries = files.list(directory);
  return entries ? Outcome(Done{}) : entries.error();
}

std::string_view changeText(FileChange change, bool pretended) {
  switch (change) {
    case FileChange::Created:
      return pretended ? "would be created  " : "created    ";
    case FileChange::Changed:
      return pretended ? "would change      " : "changed    ";
    case FileChange::Unchanged:
      break;
  }
  return pretended ? "is unchanged      " : "unchanged  ";
}

/// The one delegate of the program, which ends with it.
AppDelegate* keptDelegate(const Host& host) {
  static AppDelegate* const kDelegate = new AppDelegate(host);
  return kDelegate;
}

}  // namespace

ProjectSession::ProjectSession(Console& console, Options options)
    : m_console(console),
      m_options(options),
      m_files(m_host.files, options.files),
      m_delegate(keptDelegate(hostParts())) {
  catchInterrupt();
  m_host.panels.answerAlert = [this](const AlertRequest& alert) { return answerAlert(alert); };
  m_host.systemLog.onLine = [this](std::string_view line) { takeSystemLogLine(line); };
  if (!console.isQuiet()) {
    m_host.interfaces.setLogObserver([this](std::string_view wholeLog) { showLog(wholeLog); });
  }
}

Host ProjectSession::hostParts() {
  return {m_files,           m_host.defaults,   m_host.notifications, m_host.threads, m_host.panels,     m_host.sheets,
          m_host.interfaces, m_host.recentMenu, m_host.systemLog,     m_host.bundle,  m_host.application};
}

ExitCode ProjectSession::open(const std::string& directory) {
  const FileUrl url = absoluteUrl(directory);
  const Outcome usable = usableDirectory(m_files, url);
  if (!usable) {
    m_console.error("cannot open " + inQuotes(directory) + ": " + usable.error().sentence);
    return ExitCode::Unusable;
  }
  m_delegate->openProjectWindow();
  project().openProjectAt(url);
  return finishJob();
}

ExitCode ProjectSession::openPackage(const std::string& directory, ExitCode without) {
  const ExitCode opened = open(directory);
  if (opened != ExitCode::Fine || project().projectPackage()) return opened;
  m_console.error("there is no Xcode project in " + inQuotes(project().projectDirectory().path()));
  return without;
}

ExitCode ProjectSession::finishJob() {
  m_jobStart = Clock::now();
  m_host.runUntilIdle([this] { tick(); });
  m_console.flush();
  if (!interrupted()) return ExitCode::Fine;
  m_console.error("Canceled.");
  return ExitCode::Interrupted;
}

ExitCode ProjectSession::saveProject() {
  const bool allWritten = project().saveProject();
  reportFiles();
  return allWritten ? ExitCode::Fine : ExitCode::Unusable;
}

void ProjectSession::reportFiles() const {
  const bool pretended = m_options.files == ReportingFiles::Mode::Pretend;
  std::string text;
  for (const WrittenFile& file : m_files.written()) {
    text += changeText(file.change, pretended);
    text += shownPath(project().projectDirectory(), file.url);
    text += file.isDirectory ? "/\n" : "\n";
  }
  m_console.data(text);
}

/// The log grows line by line, and starts anew when a project is closed.
void ProjectSession::showLog(std::string_view wholeLog) {
  if (wholeLog.size() < m_shownLog) m_shownLog = 0;
  std::string_view added = wholeLog.substr(m_shownLog);
  m_shownLog = wholeLog.size();
  if (added.ends_with('\n')) added.remove_suffix(1);
  if (!added.empty()) m_console.message(added);
}

/// On the thread that writes; the log itself lets in one at a time.
void ProjectSession::takeSystemLogLine(std::string_view line) {
  if (line.starts_with(kRejectedCall)) ++m_rejectedCalls;
  if (m_options.keepsSystemLog) m_systemLog.emplace_back(line);
  m_console.diagnostic(line);
}

/// Every alert has one button. One that follows a failed write is about it.
AlertAnswer ProjectSession::answerAlert(const AlertRequest& alert) {
  if (const auto& failure = m_files.lastFailure()) {
    m_console.error(alert.message);
    m_console.error("cannot write " + inQuotes(shownPath(project().projectDirectory(), failure->url)) + ": " +
                    failure->error.sentence);
  } else if (m_options.files == ReportingFiles::Mode::Write) {
    m_console.message(alert.message);
  }
  return AlertAnswer::Default;
}

void ProjectSession::tick() {
  if (interrupted()) project().longTimeCanceled();
  if (Clock::now() - m_jobStart < kLongJob) {
    m_console.flush();
  } else {
    m_console.showProgress(progressText());
  }
}

std::string ProjectSession::progressText() const {
  const HeadlessLongTimeSheet* sheet = m_host.interfaces.longTimeSheet();
  if (!sheet) return {};
  std::string text = sheet->title.stringValue + " ";
  const HeadlessProgressIndicator& indicator = sheet->indicator;
  if (indicator.isIndeterminate || indicator.maxValue <= 0) {
    const auto elapsed = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - m_jobStart);
    return text + std::to_string(elapsed.count()) + " s";
  }
  return text + std::to_string(static_cast<int>(100 * indicator.doubleValue / indicator.maxValue)) + "%";
}

}  // namespace glossmill
