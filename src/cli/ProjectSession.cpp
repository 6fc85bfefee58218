#include "cli/ProjectSession.h"

#include "cli/DisplayText.h"
#include "cli/Interrupt.h"
#include "cli/ScanNewsText.h"
#include "cli/WritingReport.h"
#include "formats/XmlFormats.h"
#include "host/Paths.h"
#include "safety/UnfinishedSave.h"

namespace glossmill {

namespace {

using Clock = std::chrono::steady_clock;

/// Jobs that end sooner show no progress.
constexpr std::chrono::milliseconds kLongJob{500};

Outcome usableDirectory(Files& files, const FileUrl& directory) {
  if (directory.empty()) return Error{"The directory does not exist."};
  if (files.kindOf(directory) == EntryKind::File) return Error{"It is not a directory."};
  const auto entries = files.list(directory);
  return entries ? Outcome(Done{}) : entries.error();
}

KeptLog keptLog(const ProjectSession::Options& options) {
  return options.keepsLogs ? KeptLog::Whole : KeptLog::Nothing;
}

ReadingWish wishOf(const ProjectChoice& typed) {
  ReadingWish wish;
  if (!typed.rules.empty()) wish.rules = typed.rules == "xcode" ? RuleSet::Xcode : RuleSet::Classic;
  wish.packages = typed.packages;
  return wish;
}

/// The one delegate of the program, which ends with it.
AppDelegate* keptDelegate(const Host& host, KeptLog keptLog) {
  static AppDelegate* const kDelegate = new AppDelegate(host, keptLog);
  return kDelegate;
}

}  // namespace

ProjectSession::ProjectSession(Console& console, const Options& options)
    : m_console(console),
      m_options(options),
      m_files(m_host.files, ReportingFiles::modeFor(options.pretends())),
      m_delegate(keptDelegate(hostParts(), keptLog(options))) {
  catchInterrupt();
  m_delegate->setExchangeFormats(xmlFormats());
  m_host.panels.answerAlert = [this](const AlertRequest& alert) { return answerAlert(alert); };
  passMessagesOn();
}

/// Where nobody wants a message, its text is not even made.
void ProjectSession::passMessagesOn() {
  if (!m_console.isQuiet()) {
    m_delegate->onLogText = [this](const Message& message) {
      if (!m_sumsUpLog) m_console.message(message.shownText());
    };
  }
  if (!m_options.keepsLogs && !m_console.isVerbose()) return;
  m_host.systemLog.onLine = [this](const Message& line) { takeSystemLogLine(line); };
}

Host ProjectSession::hostParts() {
  return {m_files,           m_host.defaults,   m_host.notifications, m_host.threads, m_host.panels,      m_host.sheets,
          m_host.interfaces, m_host.recentMenu, m_host.systemLog,     m_host.bundle,  m_host.application, m_host.saves};
}

ExitCode ProjectSession::open(const ProjectChoice& choice) {
  const ExitCode opened = read(choice);
  if (opened == ExitCode::Fine && !project().projectPackage() && !m_console.showsLog()) {
    m_console.message("There is no Xcode project in the directory.");
  }
  return opened;
}

ExitCode ProjectSession::read(const ProjectChoice& choice) {
  const FileUrl url = absoluteUrl(choice.directory);
  const Outcome usable = usableDirectory(m_files, url);
  if (!usable) {
    m_console.error("cannot open " + inQuotes(choice.directory) + ": " + usable.error().sentence);
    return ExitCode::Unusable;
  }
  const Result<ReadingChoice> reading = readingChoice(m_files, url, wishOf(choice), absoluteUrl);
  if (!reading) {
    m_console.error(reading.error().sentence);
    return ExitCode::Unusable;
  }
  m_checks = reading.value().checks;
  m_settingsDirectory = reading.value().settingsDirectory;
  return openAt(reading.value().directory, reading.value());
}

ExitCode ProjectSession::openAt(const FileUrl& directory, const ReadingChoice& reading) {
  const ExitCode kept = keepForWriting(directory);
  if (kept != ExitCode::Fine) return kept;
  m_delegate->openProjectWindow();
  ProjectOptions options = projectOptions();
  options.rules = reading.rules;
  options.xcode = reading.xcode;
  m_sumsUpLog = !m_console.showsLog();
  project().openProjectAt(directory, options);
  const ExitCode finished = finishJob();
  m_sumsUpLog = false;
  if (finished != ExitCode::Fine) return finished;
  sumUpScan();
  if (reading.rules == RuleSet::Classic) offerOtherRules();
  return ExitCode::Fine;
}

void ProjectSession::sumUpScan() {
  if (m_console.isQuiet() || m_console.showsLog()) return;
  std::string text = scanNewsText(project().scanReport().news(), project().projectDirectory());
  if (text.empty()) return;
  text.pop_back();
  m_console.message(text);
}

/// Where the classic rules left out what others may take.
void ProjectSession::offerOtherRules() {
  const ScanTotals totals = project().scanReport().totals();
  if (totals.rejectedCalls == 0 && totals.unmatchedEntries == 0) return;
  const bool isOneEntry = totals.unmatchedEntries == 1;
  m_console.message(counted(totals.rejectedCalls, "call") + (totals.rejectedCalls == 1 ? " was" : " were") +
                    " rejected, and " + std::to_string(totals.unmatchedEntries) +
                    (isOneEntry ? " entry matches" : " entries match") +
                    " no call; xcode's rules may read them: --rules xcode");
}

ProjectOptions ProjectSession::projectOptions() const {
  ProjectOptions options;
  if (m_options.writing) {
    options.allowance = m_options.writing->allowance();
    options.maxDropped = m_options.writing->maxDropped;
  }
  options.asksToSave = false;
  options.lockPatience = std::nullopt;
  options.pretendsToSave = m_options.pretends();
  options.leavesDirectoriesToSave = m_options.leavesDirectoriesToSave;
  options.command = m_options.command;
  options.version = GLOSSMILL_VERSION;
  return options;
}

/// A dry run keeps nobody away, and is kept away by nobody.
ExitCode ProjectSession::keepForWriting(const FileUrl& directory) {
  if (!m_options.writing || m_options.pretends()) {
    mentionUnfinishedSave(directory);
    return ExitCode::Fine;
  }
  m_lock.emplace(m_host.files, m_host.saves, directory);
  const ExitCode locked = takeLock(*m_lock, directory, *m_options.writing, m_console);
  if (locked != ExitCode::Fine) return locked;
  SavedVersions versions(m_host.files, m_host.saves, directory);
  if (!findUnfinishedSave(m_host.files, m_host.saves, versions)) return ExitCode::Fine;
  m_console.error("a save of this project was cut short; nothing was done");
  m_console.error("finish it with: glossmill-cli restore --finish " + inQuotes(directory.path()));
  m_console.error("take it back with: glossmill-cli restore " + inQuotes(directory.path()));
  return ExitCode::Unusable;
}

void ProjectSession::mentionUnfinishedSave(const FileUrl& directory) {
  for (const SavedVersion& version : SavedVersions(m_host.files, m_host.saves, directory).list()) {
    if (version.isFinished) continue;
    m_console.message("A save of this project was cut short; see: glossmill-cli restore --help");
    return;
  }
}

ExitCode ProjectSession::openPackage(const ProjectChoice& choice, ExitCode without) {
  const ExitCode opened = read(choice);
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

void ProjectSession::addCounts(const std::string& text, const Json& counts) {
  m_countsText += text;
  m_counts.update(counts);
}

void ProjectSession::reportFiles() const {
  const Writing writing{project().projectDirectory(), m_files.written(), project().lastSave(), m_options.pretends()};
  if (m_options.writing && m_options.writing->json) {
    printWritingJson(writing, m_counts, m_console);
  } else {
    m_console.data(m_countsText);
    printWriting(writing, m_console);
  }
}

/// On the thread that writes; the log itself lets in one at a time.
void ProjectSession::takeSystemLogLine(const Message& line) {
  if (m_options.keepsLogs) m_systemLog.add(line);
  if (m_console.isVerbose()) m_console.diagnostic(line.shownText());
}

/// Every alert has one button.
AlertAnswer ProjectSession::answerAlert(const AlertRequest& alert) {
  if (alert.cause) {
    m_console.error(alert.message);
    m_console.error("cannot write " + inQuotes(shownPath(project().projectDirectory(), alert.cause->file)) + ": " +
                    alert.cause->error.sentence);
  } else if (!m_options.pretends()) {
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
