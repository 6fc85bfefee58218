#include "app/SaveRestorer.h"

#include <algorithm>
#include <utility>

#include "platform/ShownPath.h"
#include "safety/UnfinishedSave.h"

namespace glossmill {

namespace {

/// Nothing to note where nobody can say who it is.
const std::vector<UnreadPlace>& nothingUnread() {
  static const std::vector<UnreadPlace> kNone;
  return kNone;
}

/// Whoever writes one of the files from now on is noticed.
void expectAsTheyAre(SaveDisk& disk, RestorePlan& plan) {
  for (FileText& text : plan.texts) {
    const Result<std::optional<FileStamp>> stamp = disk.stampOf(text.file);
    if (stamp) text.expected = stamp.value();
  }
}

std::string lines(const FileUrl& project, const std::vector<FileUrl>& files) {
  std::string text;
  for (const FileUrl& file : files) text.append(shownPath(project, file)).append("\n");
  return text;
}

}  // namespace

std::vector<SavedVersion> SaveRestorer::versions() {
  return SavedVersions(m_host.files, m_host.saves, m_project.projectDirectory()).list();
}

std::optional<SavedVersion> SaveRestorer::version(const std::string& id) {
  for (SavedVersion& each : versions()) {
    if (each.id == id) return std::move(each);
  }
  return std::nullopt;
}

bool SaveRestorer::restore(const std::string& id, const std::vector<FileUrl>& wanted) {
  const std::optional<SavedVersion> found = version(id);
  if (!found || !m_project.mayReadAnew()) return false;
  SavedVersions kept(m_host.files, m_host.saves, m_project.projectDirectory());
  // A part of a save that was cut short would leave some files new and some old for good.
  const std::optional<RestorePlan> planned = plan(kept, *found, found->isFinished ? wanted : std::vector<FileUrl>());
  if (!planned) return false;
  const Written written = write(kept, *found, *planned);
  if (written.result.refusal) tellOfRefusal(*written.result.refusal, [this, id, wanted] { restore(id, wanted); });
  if (written.result.refusal && !written.wantsReload) return false;
  complainOfFailures(*found, *planned, written.result.files);
  m_project.readAnew();
  return !written.result.refusal;
}

/// Nothing when a content is not kept any more, or somebody's edits are to stay.
std::optional<RestorePlan> SaveRestorer::plan(SavedVersions& versions, const SavedVersion& version,
                                              const std::vector<FileUrl>& wanted) {
  const FileUrl& project = version.manifest.project;
  RestorePlan plan = planRestore(m_host.files, versions, version, wanted, false);
  if (!plan.changed.empty()) {
    if (!mayOverwrite(lines(project, plan.changed))) return std::nullopt;
    plan = planRestore(m_host.files, versions, version, wanted, true);
  }
  if (!plan.lost.empty()) {
    runOkAlert(localized("What these files held is not kept any more."), lines(project, plan.lost));
    return std::nullopt;
  }
  expectAsTheyAre(m_host.saves, plan);
  return plan;
}

bool SaveRestorer::mayOverwrite(const std::string& changed) {
  AlertRequest question;
  question.message = localized("Files were edited since that save. Bring back what they held before it all the same?");
  question.informativeText = changed;
  question.defaultButton = localized("Cancel");
  question.alternateButton = localized("Overwrite");
  question.escape = AlertAnswer::Default;
  return m_host.panels.runAlert(question) == AlertAnswer::Alternate;
}

/// The lock ends with this, before anybody is told.
SaveRestorer::Written SaveRestorer::write(SavedVersions& versions, const SavedVersion& version,
                                          const RestorePlan& plan) {
  ProjectOptions options = m_project.projectOptions();
  options.command = "restore --from " + version.id;
  ProtectedSave save(m_host, options, m_project.projectDirectory(), nothingUnread());
  if (!version.isFinished) save.takeBack(version.id);
  Written written{save.save(plan.texts), save.wantsReload()};
  const std::vector<FileOutcome>& files = written.result.files;
  const bool isComplete =
      !written.result.refusal &&
      std::all_of(files.begin(), files.end(), [](const FileOutcome& file) { return file.isWritten(); });
  // One that cannot be closed stays unfinished, and is offered again.
  if (isComplete && !version.isFinished) static_cast<void>(closeSave(m_host.saves, versions, version));
  return written;
}

void SaveRestorer::tellOfRefusal(const SaveRefusal& refusal, const std::function<void()>& again) {
  if (refusal.kind == SaveRefusal::Kind::Busy && busy) busy(refusal.writer, again);
  if (refusal.kind == SaveRefusal::Kind::Unfinished && unfinished) unfinished();
}

bool SaveRestorer::finish(const std::string& id) {
  const std::optional<SavedVersion> found = version(id);
  if (!found || !m_project.mayReadAnew()) return false;
  ProjectLock lock(m_host.files, m_host.saves, m_project.projectDirectory());
  const auto held = lock.acquire(m_project.projectOptions().lockPatience.value_or(std::chrono::milliseconds(0)));
  if (held && held.value()) {
    if (busy) busy(held.value()->by, [this, id] { finish(id); });
    return false;
  }
  SavedVersions kept(m_host.files, m_host.saves, m_project.projectDirectory());
  const Outcome finished = finishSave(m_host.files, m_host.saves, kept, *found);
  lock.release();
  if (!finished) runOkAlert(localized("The save could not be finished."), finished.error().sentence);
  m_project.readAnew();
  return finished.ok();
}

void SaveRestorer::complainOfFailures(const SavedVersion& version, const RestorePlan& plan,
                                      const std::vector<FileOutcome>& outcomes) {
  std::string failures;
  for (std::size_t at = 0; at < outcomes.size(); ++at) {
    if (outcomes[at].isWritten()) continue;
    failures.append(shownPath(version.manifest.project, plan.texts[at].file));
    failures.append(": ").append(outcomes[at].error.sentence).append("\n");
  }
  if (!failures.empty()) runOkAlert(localized("Not all files could be brought back."), failures);
}

void SaveRestorer::runOkAlert(const std::string& message, const std::string& details) {
  AlertRequest alert;
  alert.message = message;
  alert.informativeText = details;
  alert.defaultButton = localized("Ok");
  m_host.panels.runAlert(alert);
}

}  // namespace glossmill
