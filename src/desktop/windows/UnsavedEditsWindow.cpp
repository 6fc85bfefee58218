#include "desktop/windows/UnsavedEditsWindow.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <utility>

#include "desktop/host/QtText.h"
#include "desktop/tables/CellText.h"

namespace glossmill {

namespace {

enum EditColumn { EditKey, EditLanguage, TextBefore, TextUnsaved, TextNow, EditTime, EditNote };

using Fit = RecoverableEdit::Fit;

}  // namespace

UnsavedEditsWindow::UnsavedEditsWindow(std::vector<RecoverableEdit> edits, const Bundle& bundle, QWidget* parent)
    : QDialog(parent),
      m_edits(std::move(edits)),
      m_bundle(bundle),
      m_table(new QTreeWidget),
      m_apply(new QPushButton(localized("Apply"))),
      m_discard(new QPushButton(localized("Discard All"))),
      m_close(new QPushButton(localized("Close"))) {
  setObjectName(QStringLiteral("UnsavedEditsWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(localized("Unsaved Edits"));
  resize(860, 420);
  layOut();
  for (const RecoverableEdit& edit : m_edits) addRow(edit);
  connect(m_table, &QTreeWidget::itemChanged, this, [this] { validate(); });
  connect(m_apply, &QPushButton::clicked, this, [this] {
    if (apply) apply(chosen());
    close();
  });
  connect(m_discard, &QPushButton::clicked, this, [this] {
    if (discard) discard();
    close();
  });
  connect(m_close, &QPushButton::clicked, this, &QDialog::close);
  validate();
  m_table->setCurrentItem(m_table->topLevelItem(0));
  m_table->setFocus();
}

void UnsavedEditsWindow::layOut() {
  m_table->setObjectName(QStringLiteral("unsavedEditsTable"));
  m_table->setAccessibleName(windowTitle());
  m_table->setHeaderLabels({localized("Key"), localized("Language"), localized("Was"), localized("Unsaved Text"),
                            localized("Is Now"), localized("Time"), localized("Note")});
  m_table->setRootIsDecorated(false);
  m_table->setUniformRowHeights(true);
  m_table->setAllColumnsShowFocus(true);
  m_table->setTabKeyNavigation(false);
  m_table->header()->setDefaultSectionSize(140);
  m_apply->setObjectName(QStringLiteral("applyButton"));
  m_discard->setObjectName(QStringLiteral("discardButton"));
  m_discard->setAutoDefault(false);
  m_close->setObjectName(QStringLiteral("closeButton"));
  m_apply->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(m_discard);
  buttons->addStretch();
  buttons->addWidget(m_close);
  buttons->addWidget(m_apply);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 12, 14, 12);
  layout->addWidget(m_table, 1);
  layout->addLayout(buttons);
}

void UnsavedEditsWindow::addRow(const RecoverableEdit& edit) {
  auto* row = new QTreeWidgetItem(m_table);
  row->setText(EditKey, cellText(edit.edit.key));
  row->setText(EditLanguage, cellText(edit.edit.language));
  row->setText(TextBefore, textOr(edit.edit.before));
  row->setText(TextUnsaved, textOr(edit.edit.after));
  row->setText(TextNow, textOr(edit.now));
  row->setText(EditTime, QLocale().toString(QDateTime::fromSecsSinceEpoch(edit.edit.time), QLocale::ShortFormat));
  row->setText(EditNote, noteOf(edit));
  row->setCheckState(EditKey, edit.fit == Fit::Applies ? Qt::Checked : Qt::Unchecked);
  if (!edit.canBeApplied()) row->setFlags(row->flags() & ~Qt::ItemIsUserCheckable);
}

QString UnsavedEditsWindow::textOr(const std::optional<std::string>& text) const {
  return text ? cellText(*text) : localized("(none)");
}

QString UnsavedEditsWindow::noteOf(const RecoverableEdit& edit) const {
  switch (edit.fit) {
    case Fit::Applies:
      return {};
    case Fit::Changed:
      return localized("changed since");
    case Fit::NoString:
      return localized("no such string any more");
    case Fit::NoLanguage:
      break;
  }
  return localized("no such language any more");
}

std::vector<RecoverableEdit> UnsavedEditsWindow::chosen() const {
  std::vector<RecoverableEdit> chosen;
  for (int row = 0; row < m_table->topLevelItemCount(); ++row) {
    if (m_table->topLevelItem(row)->checkState(EditKey) != Qt::Checked) continue;
    chosen.push_back(m_edits[static_cast<std::size_t>(row)]);
  }
  return chosen;
}

void UnsavedEditsWindow::validate() {
  m_apply->setEnabled(!chosen().empty());
}

QString UnsavedEditsWindow::localized(std::string_view key) const {
  return toQt(m_bundle.localizedString(key));
}

}  // namespace glossmill
