#include "model/Settings.h"
#include "project/ProjectWindowController.h"
#include "search/ReplacePlan.h"

namespace glossmill {

namespace {

constexpr int kAllStrings = 0;
constexpr int kStringsNotComplete = 1;
constexpr int kSaveToolbarItem = 2;

}  // namespace

std::size_t ProjectWindowController::replaceTexts(const std::vector<Replacement>& replacements) {
  const std::vector<Edit> edits = editsThatFit(replacements);
  if (!edits.empty()) applyStep(EditKind::Replacement, edits);
  return edits.size();
}

void ProjectWindowController::changeStringFilter() {
  m_window.outlets.stringTableView->beginUpdates();
  const int index = m_window.outlets.stringFilterPopUp->indexOfSelectedItem();
  storeNumber(m_host.defaults, SettingId::StringFilter, index);
  if (index == kStringsNotComplete) holdBackCompleteStrings();
  if (index == kAllStrings) giveBackStrings();
  m_window.outlets.stringTableView->endUpdates();
}

void ProjectWindowController::holdBackCompleteStrings() {
  const auto isComplete = [this](const LocalizeString& record) { return record.status(this) == Status::Complete; };
  for (const std::shared_ptr<LocalizeString>& record : stringList()) {
    if (isComplete(*record)) m_filteredStringList.push_back(record);
  }
  m_stringController.removeObjectsIf(isComplete);
}

void ProjectWindowController::giveBackStrings() {
  m_stringController.addObjects(m_filteredStringList);
  m_filteredStringList.clear();
}

void ProjectWindowController::stringChangedNotification() {
  setChanged(true);
}

std::int64_t ProjectWindowController::totalLanguages() const {
  return static_cast<std::int64_t>(languagesList()->size());
}

std::shared_ptr<LocalizeString> ProjectWindowController::selectedString() const {
  return m_stringController.selectedObject();
}

std::shared_ptr<Language> ProjectWindowController::selectedLanguage() const {
  return m_languageController.selectedObject();
}

std::size_t ProjectWindowController::missingTranslations(const Language& language) const {
  return m_counts.missing(language.code(), stringList());
}

Status ProjectWindowController::languageStatus(const Language& language) const {
  return missingTranslations(language) == 0 ? Status::Complete : Status::Incomplete;
}

std::string ProjectWindowController::languageStatusString(const Language& language) const {
  const std::size_t missing = missingTranslations(language);
  return missing == 0 ? m_statusTexts.completeString : m_statusTexts.missingString(static_cast<std::int64_t>(missing));
}

/// Some edits may reach records that the filter holds back, and those do not count.
void ProjectWindowController::countApplied(const Edit& edit, EditKind kind) {
  if (kind == EditKind::Undo || kind == EditKind::Recovery) {
    m_counts.invalidate();
  } else {
    m_counts.adjust(edit);
  }
}

/// Typing marks the project by way of the notification, every time; whatever else does marks it once.
void ProjectWindowController::editApplied(const Edit& edit, EditKind kind) {
  countApplied(edit, kind);
  if (!m_rules->marksChanged(kind, edit)) return;
  if (isTyping(kind)) {
    m_host.notifications.post(kTranslationChangedNotification, edit.record.get());
  } else if (!m_changed) {
    setChanged(true);
  }
}

/// Nothing is stored: an entry that is the empty text reads like no entry, and being shown must not take it away.
void ProjectWindowController::languageSelectionDidChange() {
  if (selectedString()) m_window.outlets.translationTextView->translationChanged();
}

void ProjectWindowController::selectPrevString() {
  step([this] { m_stringController.selectPrevious(); });
}

void ProjectWindowController::selectNextString() {
  step([this] { m_stringController.selectNext(); });
}

void ProjectWindowController::selectString(std::size_t row) {
  step([this, row] { m_stringController.setSelectionIndex(row); });
}

void ProjectWindowController::selectPrevLanguage() {
  step([this] { m_languageController.selectPrevious(); });
}

void ProjectWindowController::selectNextLanguage() {
  step([this] { m_languageController.selectNext(); });
}

/// Commits an edit in progress, moves the selection, and puts the keyboard back into the editor.
void ProjectWindowController::step(const std::function<void()>& select) {
  m_window.outlets.window->clearFirstResponder();
  select();
  m_window.outlets.window->focusMainField();
}

bool ProjectWindowController::validateToolbarItem(int tag) const {
  return tag == kSaveToolbarItem ? canSave() : true;
}

}  // namespace glossmill
