#include "project/ProtectedSave.h"

#include <utility>

#include "safety/UnfinishedSave.h"

namespace glossmill {

namespace {

void allow(SaveAllowance& allowance, SaveRefusal::Kind kind) {
  if (kind == SaveRefusal::Kind::Incomplete) allowance.incomplete = true;
  if (kind == SaveRefusal::Kind::Outside) allowance.outside = true;
  if (kind == SaveRefusal::Kind::Changed) allowance.changed = true;
  if (kind == SaveRefusal::Kind::NoCopy) allowance.noCopy = true;
}

bool canBeAllowed(SaveRefusal::Kind kind) {
  using enum SaveRefusal::Kind;
  return kind != Busy && kind != Unfinished && kind != Dropped;
}

SaveRefusal refusalFor(SaveRefusal::Kind kind, const FileUrl& project, std::string sentence) {
  SaveRefusal refusal;
  refusal.kind = kind;
  refusal.places.push_back({project, std::move(sentence)});
  return refusal;
}

}  // namespace

ProtectedSave::ProtectedSave(const Host& host, const ProjectOptions& options, const FileUrl& project,
                             const std::vector<UnreadPlace>& unread)
    : m_host(host),
      m_options(options),
      m_unread(unread),
      m_lock(host.files, host.saves, project),
      m_order{project,           options.version,        options.command,   host.saves.now(),
              options.allowance, options.pretendsToSave, options.maxDropped} {}

SaveResult ProtectedSave::save(const std::vector<FileText>& texts) {
  SaveResult result = attempt(texts);
  while (result.refusal && m_options.asksToSave && mayGoOn(*result.refusal)) {
    allow(m_order.allowance, result.refusal->kind);
    result = attempt(texts);
  }
  return result;
}

SaveResult ProtectedSave::attempt(const std::vector<FileText>& texts) {
  SaveResult result;
  result.refusal = keepOthersAway();
  if (!result.refusal) result.refusal = obstacle();
  if (!result.refusal) result = SaveTransaction(m_host.files, m_host.saves, m_order).save(texts);
  if (result.refusal) m_lock.release();
  return result;
}

/// A directory that cannot be locked, as one that is gone, is no reason to keep the user from saving: files that others
/// have changed are still noticed.
std::optional<SaveRefusal> ProtectedSave::keepOthersAway() {
  if (!m_options.lockPatience || m_order.pretends) return std::nullopt;
  const auto held = m_lock.acquire(*m_options.lockPatience);
  if (!held || !held.value()) return std::nullopt;
  SaveRefusal refusal = refusalFor(SaveRefusal::Kind::Busy, m_order.project, "Another program is writing it.");
  refusal.writer = held.value()->by;
  return refusal;
}

/// What could not be read is not in the table, so a save would take it out of the files.
std::optional<SaveRefusal> ProtectedSave::obstacle() {
  if (m_lock.isHeld()) {
    SavedVersions versions(m_host.files, m_host.saves, m_order.project);
    const std::optional<SavedVersion> open = findUnfinishedSave(m_host.files, m_host.saves, versions);
    if (open && open->id != m_takenBack) {
      return refusalFor(SaveRefusal::Kind::Unfinished, m_order.project, "A save of it was cut short.");
    }
  }
  if (m_unread.empty() || m_order.allowance.incomplete) return std::nullopt;
  SaveRefusal refusal;
  refusal.kind = SaveRefusal::Kind::Incomplete;
  for (const UnreadPlace& place : m_unread) refusal.places.push_back({place.url, place.sentence});
  return refusal;
}

/// Leaving everything as it is comes first.
bool ProtectedSave::mayGoOn(const SaveRefusal& refusal) {
  if (!canBeAllowed(refusal.kind)) return false;
  const AlertAnswer answer = m_host.panels.runAlert(questionAbout(refusal));
  m_wantsReload = answer == AlertAnswer::Other;
  return answer == AlertAnswer::Alternate;
}

AlertRequest ProtectedSave::questionAbout(const SaveRefusal& refusal) const {
  AlertRequest question;
  question.escape = AlertAnswer::Default;
  question.defaultButton = localized("Cancel");
  question.alternateButton = localized("Save Anyway");
  for (const SaveRefusal::Place& place : refusal.places) {
    question.informativeText += place.file.path() + "\n";
    if (refusal.kind != SaveRefusal::Kind::Changed) question.informativeText += place.sentence + "\n";
  }
  if (refusal.kind == SaveRefusal::Kind::Changed) {
    question.message = localized("Files were changed by another program. Overwrite them?");
    question.alternateButton = localized("Overwrite");
    question.otherButton = localized("Reload");
  } else if (refusal.kind == SaveRefusal::Kind::Incomplete) {
    question.message =
        localized("Parts of the project could not be read, and a save would lose what they hold. Save anyway?");
  } else if (refusal.kind == SaveRefusal::Kind::Outside) {
    question.message = localized("Files outside the project would be written. Save anyway?");
  } else {
    question.message =
        localized("What is replaced cannot be kept, so that the save could not be taken back. Save anyway?");
  }
  return question;
}

}  // namespace glossmill
