#include "desktop/windows/SavedVersionsWindow.h"

#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"
#include "platform/ShownPath.h"
#include "safety/EntryCounts.h"

namespace glossmill {

namespace {

enum SaveColumn { SaveTime, SavedBy, SavedFiles, SaveBefore, SaveAfter, SaveNotWritten };
enum FileColumn { FileLanguage, FileName, FileBefore, FileAfter, FileNotWritten, FileNow };

QTreeWidget* table(const char* name, const QString& title, const QStringList& columns, int stretched) {
  auto* table = new QTreeWidget;
  table->setObjectName(QLatin1String(name));
  table->setAccessibleName(title);
  table->setHeaderLabels(columns);
  table->setRootIsDecorated(false);
  table->setAlternatingRowColors(true);
  table->setUniformRowHeights(true);
  table->setAllColumnsShowFocus(true);
  // Tab leads out of it, the arrows through it.
  table->setTabKeyNavigation(false);
  table->header()->setStretchLastSection(false);
  table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->header()->setSectionResizeMode(stretched, QHeaderView::Stretch);
  return table;
}

QLabel* headingOf(QWidget* table) {
  auto* label = new QLabel(table->accessibleName());
  label->setBuddy(table);
  return label;
}

void alignNumbers(QTreeWidgetItem& row, std::initializer_list<int> columns) {
  for (QTreeWidgetItem* item : {&row, row.treeWidget()->headerItem()}) {
    for (const int column : columns) item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
  }
}

QString timeOf(const SavedVersion& version) {
  return QLocale().toString(QDateTime::fromSecsSinceEpoch(version.manifest.time), QLocale::ShortFormat);
}

EntryCounts countsOf(const SavedFile& file) {
  EntryCounts counts;
  counts.before = file.before ? file.entriesBefore : 0;
  counts.after = file.entriesAfter;
  return counts;
}

}  // namespace

SavedVersionsWindow::SavedVersionsWindow(SaveRestorer& restorer, const Bundle& bundle, QWidget* parent)
    : QDialog(parent),
      m_restorer(restorer),
      m_bundle(bundle),
      m_saves(table("savesTable", text("Saves"),
                    {text("Time"), text("By"), text("Files"), text("Entries before"), text("Entries after"),
                     text("Not written again")},
                    SavedBy)),
      m_files(table("savedFilesTable", text("Changed by this save"),
                    {text("Language"), text("File"), text("Entries before"), text("Entries after"),
                     text("Not written again"), text("Now")},
                    FileName)),
      m_empty(
          new QLabel(text("No save of this project is kept yet. From the next one on, each can be taken back here."))),
      m_restore(new QPushButton(text("Restore"))),
      m_close(new QPushButton(text("Close"))) {
  setObjectName(QStringLiteral("SavedVersionsWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(text("Saved Versions"));
  resize(880, 520);
  layOut();
  connect(m_saves, &QTreeWidget::currentItemChanged, this, [this] { showFiles(); });
  connect(m_files, &QTreeWidget::itemChanged, this, [this] { m_restore->setEnabled(!chosenFiles().empty()); });
  connect(m_restore, &QPushButton::clicked, this, [this] { restore(); });
  connect(m_close, &QPushButton::clicked, this, &QDialog::close);
  fillSaves();
}

void SavedVersionsWindow::layOut() {
  m_restore->setObjectName(QStringLiteral("restoreButton"));
  m_restore->setAutoDefault(false);
  m_close->setObjectName(QStringLiteral("closeButton"));
  m_close->setDefault(true);
  m_empty->setObjectName(QStringLiteral("noSaves"));
  m_empty->setAlignment(Qt::AlignCenter);
  m_empty->setWordWrap(true);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_restore);
  buttons->addWidget(m_close);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 12, 14, 12);
  layout->addWidget(headingOf(m_saves));
  layout->addWidget(m_saves, 1);
  layout->addWidget(m_empty, 1);
  layout->addSpacing(6);
  layout->addWidget(headingOf(m_files));
  layout->addWidget(m_files, 1);
  layout->addSpacing(6);
  layout->addLayout(buttons);
}

QString SavedVersionsWindow::text(std::string_view key) const {
  return toQt(m_bundle.localizedString(key));
}

QString SavedVersionsWindow::countOr(const std::optional<std::uint64_t>& count) const {
  return count ? QLocale().toString(static_cast<qulonglong>(*count)) : text("unknown");
}

void SavedVersionsWindow::fillSaves() {
  m_versions = m_restorer.versions();
  for (const SavedVersion& version : m_versions) addSave(version);
  const bool isEmpty = m_versions.empty();
  m_empty->setVisible(isEmpty);
  for (QWidget* widget : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (widget != m_empty && widget != m_close) widget->setVisible(!isEmpty);
  }
  if (isEmpty) {
    m_close->setFocus();
  } else {
    m_saves->setCurrentItem(m_saves->topLevelItem(0));
    m_saves->setFocus();
  }
}

void SavedVersionsWindow::addSave(const SavedVersion& version) {
  const EntryCounts counts = entryCounts(version.manifest);
  auto* row = new QTreeWidgetItem(m_saves);
  row->setText(SaveTime, timeOf(version));
  const QString by = version.manifest.command == "window" ? text("Window") : shownText(version.manifest.command);
  row->setText(SavedBy, version.isFinished ? by : text("cut short: %@").replace(QLatin1String("%@"), by));
  row->setText(SavedFiles, QLocale().toString(static_cast<qulonglong>(version.manifest.files.size())));
  row->setText(SaveBefore, countOr(counts.before));
  row->setText(SaveAfter, countOr(counts.after));
  row->setText(SaveNotWritten, countOr(counts.notWritten()));
  alignNumbers(*row, {SavedFiles, SaveBefore, SaveAfter, SaveNotWritten});
}

const SavedVersion* SavedVersionsWindow::selected() const {
  const int row = m_saves->indexOfTopLevelItem(m_saves->currentItem());
  return row < 0 ? nullptr : &m_versions[static_cast<std::size_t>(row)];
}

void SavedVersionsWindow::select(const std::string& id) {
  const auto found = std::find_if(m_versions.begin(), m_versions.end(),
                                  [&id](const SavedVersion& version) { return version.id == id; });
  if (found == m_versions.end()) return;
  m_saves->setCurrentItem(m_saves->topLevelItem(static_cast<int>(found - m_versions.begin())));
}

void SavedVersionsWindow::showFiles() {
  m_files->clear();
  const SavedVersion* version = selected();
  if (!version) return;
  for (const SavedFile& file : version->manifest.files) addFile(*version, file);
  m_files->setCurrentItem(m_files->topLevelItem(0));
  m_restore->setEnabled(!chosenFiles().empty());
}

/// A file that holds what it held before the save has nothing to be brought back.
void SavedVersionsWindow::addFile(const SavedVersion& version, const SavedFile& file) {
  const EntryCounts counts = countsOf(file);
  const FileState state = m_restorer.stateNow(file);
  const bool isBack = state == FileState::Before;
  auto* row = new QTreeWidgetItem(m_files);
  row->setText(FileLanguage, shownText(file.language));
  row->setCheckState(FileLanguage, isBack ? Qt::Unchecked : Qt::Checked);
  row->setText(FileName, shownText(shownPath(version.manifest.project, file.file)));
  row->setText(FileBefore, file.before ? countOr(counts.before) : text("no file"));
  row->setText(FileAfter, file.after ? countOr(counts.after) : text("no file"));
  row->setText(FileNotWritten, countOr(counts.notWritten()));
  row->setText(FileNow, isBack                      ? text("as before this save")
                        : state == FileState::After ? text("as this save wrote it")
                                                    : text("edited since"));
  alignNumbers(*row, {FileBefore, FileAfter, FileNotWritten});
  if (isBack) row->setFlags(row->flags() & ~Qt::ItemIsUserCheckable);
}

std::vector<FileUrl> SavedVersionsWindow::chosenFiles() const {
  std::vector<FileUrl> chosen;
  const SavedVersion* version = selected();
  for (int row = 0; version && row < m_files->topLevelItemCount(); ++row) {
    if (m_files->topLevelItem(row)->checkState(FileLanguage) != Qt::Checked) continue;
    chosen.push_back(version->manifest.files[static_cast<std::size_t>(row)].file);
  }
  return chosen;
}

/// The project is read anew afterwards, with which this window goes away.
void SavedVersionsWindow::restore() {
  const SavedVersion* version = selected();
  const std::vector<FileUrl> chosen = chosenFiles();
  if (version && !chosen.empty()) m_restorer.restore(version->id, chosen);
}

}  // namespace glossmill
