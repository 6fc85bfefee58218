#include "desktop/windows/ProjectWindowInterface.h"

#include <QDateTime>
#include <QLocale>
#include <QShortcut>
#include <utility>

#include "desktop/QuitPath.h"
#include "desktop/look/Icons.h"
#include "desktop/windows/DirectoryDrop.h"
#include "desktop/windows/MainMenu.h"
#include "desktop/windows/MenuBarFocus.h"
#include "desktop/windows/WindowMemory.h"

namespace glossmill {

ProjectWindowInterface::ProjectWindowInterface(ProjectWindowController& project, Shell& shell)
    : m_project(project),
      m_shell(shell),
      m_widgets(m_mainWindow),
      m_newsBar(new NewsBar(shell.delegate.news(), shell.bundle)),
      m_unsavedNews(project, shell.delegate.news(), shell.bundle),
      m_news(shell.delegate.host(), project, shell.delegate.news(), m_fileWatch),
      m_reference(project),
      m_window(m_mainWindow, *m_widgets.translationTextView),
      m_strings({*m_widgets.stringTableView, *m_widgets.stringCount, *m_widgets.stringFilterPopUp,
                 *m_widgets.tablePopUp, *m_widgets.onlyButton, *m_widgets.searchField},
                project, m_reference, shell.bundle),
      m_languages(*m_widgets.languageTableView, *m_widgets.languageCount, project, shell.bundle),
      m_details({*m_widgets.keyText, *m_widgets.sourceLabel, *m_widgets.sourceText, *m_widgets.commentText,
                 *m_widgets.editorLabel, *m_widgets.translationTextView},
                project, m_reference, shell.bundle),
      m_viewMenu(project, m_reference, m_strings.columns().menu(), shell.bundle),
      m_toolBar(*m_widgets.toolBar, shell.actions, shell.delegate, shell.bundle) {
  m_widgets.mainSplitter->setSizes({500, 210});
  m_widgets.tableSplitter->setSizes({850, 330});
  m_widgets.detailSplitter->setSizes({460, 720});
  m_widgets.mainSplitter->setStretchFactor(0, 1);
  m_widgets.tableSplitter->setStretchFactor(0, 1);
  keepClearOfSplitters();
  restoreLayout(m_mainWindow);
  m_strings.columns().restore();
  m_widgets.stringTableView->setFocus();
  setUpCommands();
  setUpSearch();
  setUpNews();
  observeProject();
  setUpUnsavedEdits();
  setUpUnusedEntries();
}

/// The arranged rows went away before this, so nothing of the window may look for them any more.
ProjectWindowInterface::~ProjectWindowInterface() {
  saveLayout(m_mainWindow);
  m_strings.columns().save();
  m_shell.notifications.removeObserver(this);
  m_shell.sheets.changed = nullptr;
  m_shell.actions.validated = nullptr;
}

ProjectWindowOutlets ProjectWindowInterface::outlets() {
  return {&m_window, &m_strings.table(), &m_languages.table(), m_widgets.translationTextView, &m_strings.filterPopUp()};
}

/// From right to left a splitter places its parts one pixel too far to the right and cuts their edge off.
void ProjectWindowInterface::keepClearOfSplitters() {
  if (!m_mainWindow.isRightToLeft()) return;
  for (QWidget* pane : {m_widgets.stringPane, m_widgets.languagePane, m_widgets.stringDetails, m_widgets.editorPane}) {
    pane->layout()->setContentsMargins(0, 0, 1, 0);
  }
}

void ProjectWindowInterface::setUpCommands() {
  fillMenuBar(*m_widgets.menubar, m_shell.actions, m_shell.recentMenu.menu(), m_shell.bundle);
  m_viewMenu.insertInto(*m_widgets.menubar, 2);
  m_viewMenu.referenceChanged = [this] { referenceChanged(); };
  new MenuBarFocus(*m_widgets.menubar);
  m_shell.sheets.setWindow(m_mainWindow);
  m_shell.sheets.changed = [this] { sheetsChanged(); };
  m_shell.panels.setParentWindow(&m_mainWindow);
  m_shell.actions.setHandler(CommandId::Find, [this] { m_strings.focusSearch(); });
  m_shell.actions.validated = [this] { m_toolBar.validate(); };
  m_mainWindow.closeRequested = [this] { m_shell.quitPath.request(); };
  m_window.editedChanged = [this] { m_shell.actions.validateSoon(); };
  new DirectoryDrop(
      m_mainWindow, [this] { return !m_shell.sheets.isUp(); },
      [this](const FileUrl& directory) {
        m_shell.panels.presetDirectory(directory);
        m_shell.delegate.open();
        m_shell.panels.presetDirectory(std::nullopt);
      });
}

void ProjectWindowInterface::setUpSearch() {
  QLineEdit& field = *m_widgets.searchField;
  field.addAction(icon(QStringLiteral("search")), QLineEdit::LeadingPosition);
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), &field, nullptr, nullptr, Qt::WidgetShortcut);
  QObject::connect(escape, &QShortcut::activated, &field, [this] { m_strings.leaveSearch(); });
  QObject::connect(&field, &QLineEdit::returnPressed, &field, [this] { m_window.focusMainField(); });
}

void ProjectWindowInterface::setUpNews() {
  m_widgets.centralLayout->insertWidget(0, m_newsBar);
  m_newsBar->changed = [this] { m_shell.actions.validateSoon(); };
  m_shell.actions.setHandler(CommandId::GoToMessage, [this] { m_newsBar->switchFocus(); });
  m_shell.actions.setHandler(CommandId::SavedVersions, [this] { showVersions({}); });
  m_news.rules.useXcodeRules = [this] { m_shell.delegate.chooseRules(RuleSet::Xcode); };
  m_news.saves.show = [this](const std::string& id) { showVersions(id); };
  m_project.observers().add([this](ProjectMoment moment) {
    if (moment == ProjectMoment::Closed && m_versions) m_versions->close();
  });
}

/// Made anew each time, as others may have saved meanwhile.
void ProjectWindowInterface::showVersions(const std::string& id) {
  delete m_versions;
  m_versions = new SavedVersionsWindow(m_news.restorer, m_shell.bundle, &m_mainWindow);
  m_versions->select(id);
  m_versions->show();
}

void ProjectWindowInterface::setUpUnsavedEdits() {
  m_unsavedNews.timeText = [](std::int64_t time) {
    return fromQt(QLocale().toString(QDateTime::fromSecsSinceEpoch(time), QStringLiteral("d MMM yyyy, HH:mm")));
  };
  m_unsavedNews.show = [this] { showUnsavedEdits(); };
  m_project.observers().add([this](ProjectMoment moment) {
    m_window.setHasUnsavedEdits(m_project.hasUnsavedEdits());
    if (moment == ProjectMoment::Closed && m_unsavedEdits) m_unsavedEdits->close();
  });
}

void ProjectWindowInterface::showUnsavedEdits() {
  delete m_unsavedEdits;
  m_unsavedEdits = new UnsavedEditsWindow(m_project.recoverableEdits(), m_shell.bundle, &m_mainWindow);
  m_unsavedEdits->apply = [this](const std::vector<RecoverableEdit>& chosen) { m_project.recover(chosen); };
  m_unsavedEdits->discard = [this] { m_project.discardRecoverableEdits(); };
  QObject::connect(m_unsavedEdits, &QDialog::finished, &m_mainWindow, [this] { m_unsavedNews.offer(); });
  m_unsavedEdits->show();
}

void ProjectWindowInterface::setUpUnusedEntries() {
  m_shell.actions.setHandler(CommandId::RemoveUnused, [this] { showUnusedEntries(); });
  m_project.observers().add([this](ProjectMoment moment) {
    if (moment == ProjectMoment::Closed && m_unusedEntries) m_unusedEntries->close();
  });
}

/// What it shows is what was there when it was opened, so nothing else is edited meanwhile.
void ProjectWindowInterface::showUnusedEntries() {
  delete m_unusedEntries;
  m_unusedEntries =
      new UnusedEntriesWindow(m_project.unusedEntries(*m_project.languagesList()), m_shell.bundle, &m_mainWindow);
  m_unusedEntries->setWindowModality(Qt::WindowModal);
  m_unusedEntries->remove = [this](const std::vector<Edit>& chosen) { m_project.removeEntries(chosen); };
  m_unusedEntries->show();
}

void ProjectWindowInterface::observeProject() {
  m_project.stringController().addObserver([this](ArrayChange change) { stringsChanged(change); });
  m_project.languageController().addObserver([this](ArrayChange change) { languagesChanged(change); });
  m_shell.notifications.addObserver(this, kTranslationChangedNotification,
                                    [this](const void*) { m_languages.redraw(); });
  m_project.edits().addObserver([this](const Edit&, const EditStep& step) { editApplied(step.kind); });
  m_project.observers().add([this](ProjectMoment moment) {
    if (moment != ProjectMoment::Saved) m_details.referenceChanged();
  });
  QObject::connect(m_widgets.translationTextView, &TranslationEditor::translationEdited, &m_mainWindow,
                   [this] { m_strings.translationEdited(); });
}

void ProjectWindowInterface::stringsChanged(ArrayChange change) {
  m_strings.stringsChanged(change);
  if (change == ArrayChange::Content) m_languages.redraw();
  m_details.stringSelected();
  m_shell.actions.validateSoon();
}

void ProjectWindowInterface::languagesChanged(ArrayChange change) {
  m_languages.languagesChanged(change);
  if (change == ArrayChange::Selection) m_project.languageSelectionDidChange();
  m_strings.translationsChanged();
  m_details.languageSelected();
  m_shell.actions.validateSoon();
}

/// What the editor could take back by itself is not what stands there any more once a step was undone.
void ProjectWindowInterface::editApplied(EditKind kind) {
  m_window.setHasUnsavedEdits(m_project.hasUnsavedEdits());
  m_shell.actions.validateSoon();
  if (kind != EditKind::Undo && kind != EditKind::Recovery) return;
  m_widgets.translationTextView->document()->clearUndoRedoStacks();
  if (std::exchange(m_refreshQueued, true)) return;
  QMetaObject::invokeMethod(
      &m_mainWindow, [this] { refresh(); }, Qt::QueuedConnection);
}

void ProjectWindowInterface::refresh() {
  m_refreshQueued = false;
  m_strings.translationsChanged();
  m_languages.redraw();
}

void ProjectWindowInterface::referenceChanged() {
  m_strings.referenceChanged();
  m_details.referenceChanged();
}

void ProjectWindowInterface::sheetsChanged() {
  m_shell.actions.setCovered(m_shell.sheets.isUp());
  if (m_shell.sheets.isUp()) return;
  m_strings.translationsChanged();
  m_strings.table().settle();
  m_languages.table().settle();
  if (!m_mainWindow.focusWidget()) m_widgets.stringTableView->setFocus();
}

}  // namespace glossmill
