#include "desktop/windows/UnusedEntriesWindow.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/host/QtText.h"
#include "text/Format.h"

namespace glossmill {

UnusedEntriesWindow::UnusedEntriesWindow(std::vector<Edit> edits, const Bundle& bundle, QWidget* parent)
    : QDialog(parent),
      m_bundle(bundle),
      m_edits(std::move(edits), bundle),
      m_explanation(new QLabel),
      m_table(new QTableView),
      m_all(new QCheckBox),
      m_remove(new QPushButton(text("Remove"))),
      m_cancel(new QPushButton(text("Cancel"))) {
  setObjectName(QStringLiteral("UnusedEntriesWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(text("Remove Unused Entries"));
  resize(880, 480);
  setUpTable();
  layOut();
  connect(&m_edits, &QAbstractItemModel::dataChanged, this, [this] { showCount(); });
  connect(m_all, &QCheckBox::clicked, this, [this] { checkAll(); });
  connect(m_remove, &QPushButton::clicked, this, [this] { removeChecked(); });
  connect(m_cancel, &QPushButton::clicked, this, &QDialog::close);
  showCount();
}

void UnusedEntriesWindow::setUpTable() {
  m_table->setObjectName(QStringLiteral("unusedTable"));
  m_table->setAccessibleName(text("Unused entries"));
  m_table->setModel(&m_edits);
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setAlternatingRowColors(true);
  m_table->setShowGrid(false);
  m_table->setWordWrap(false);
  m_table->setTabKeyNavigation(false);
  m_table->setCornerButtonEnabled(false);
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
  QHeaderView& header = *m_table->horizontalHeader();
  header.setHighlightSections(false);
  header.setStretchLastSection(true);
  header.resizeSection(CheckedEdits::LanguageColumn, 110);
  header.resizeSection(CheckedEdits::TableColumn, 180);
  header.resizeSection(CheckedEdits::KeyColumn, 260);
  auto* space = new QShortcut(QKeySequence(Qt::Key_Space), m_table, nullptr, nullptr, Qt::WidgetShortcut);
  connect(space, &QShortcut::activated, this, [this] { switchSelected(); });
}

void UnusedEntriesWindow::layOut() {
  m_explanation->setObjectName(QStringLiteral("unusedExplanation"));
  m_explanation->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 12, 14, 12);
  layout->setSpacing(8);
  layout->addWidget(m_explanation);
  layout->addWidget(m_table, 1);
  layout->addLayout(buttonRow());
  const bool isEmpty = m_edits.rowCount() == 0;
  for (QWidget* part : std::initializer_list<QWidget*>{m_table, m_all, m_remove}) part->setVisible(!isEmpty);
  m_explanation->setText(isEmpty ? text("Every entry is used: there is nothing to remove.")
                                 : text("Nothing in the sources uses these entries. Those that are checked leave "
                                        "their files with the next save; until then it can be undone."));
  if (isEmpty) {
    m_explanation->setAlignment(Qt::AlignCenter);
    m_cancel->setText(text("Close"));
    m_cancel->setFocus();
    resize(480, 140);
  } else {
    m_table->setCurrentIndex(m_edits.index(0, 0));
    m_table->setFocus();
  }
}

QLayout* UnusedEntriesWindow::buttonRow() {
  m_all->setObjectName(QStringLiteral("allUnused"));
  m_remove->setObjectName(QStringLiteral("removeButton"));
  m_remove->setDefault(true);
  m_cancel->setObjectName(QStringLiteral("cancelButton"));
  m_cancel->setAutoDefault(false);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(m_all);
  buttons->addStretch();
  buttons->addWidget(m_cancel);
  buttons->addWidget(m_remove);
  return buttons;
}

QString UnusedEntriesWindow::text(std::string_view key) const {
  return toQt(m_bundle.localizedString(key));
}

void UnusedEntriesWindow::showCount() {
  const auto all = static_cast<std::size_t>(m_edits.rowCount());
  const std::size_t checked = m_edits.checkedCount();
  m_all->setText(
      toQt(formatText(m_bundle.localizedString("%@ of %@ checked"), {std::to_string(checked), std::to_string(all)})));
  m_all->setCheckState(checked == 0 ? Qt::Unchecked : checked == all ? Qt::Checked : Qt::PartiallyChecked);
  m_remove->setEnabled(checked > 0);
}

/// A box that is partly checked becomes checked first.
void UnusedEntriesWindow::checkAll() {
  m_edits.checkAll(m_edits.checkedCount() < static_cast<std::size_t>(m_edits.rowCount()));
}

/// All of them alike, whatever they were before.
void UnusedEntriesWindow::switchSelected() {
  const QModelIndexList rows = m_table->selectionModel()->selectedRows();
  const auto isChecked = [](const QModelIndex& row) { return row.data(Qt::CheckStateRole).toInt() == Qt::Checked; };
  const bool wanted = !std::all_of(rows.begin(), rows.end(), isChecked);
  for (const QModelIndex& row : rows) m_edits.setData(row, wanted ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

void UnusedEntriesWindow::removeChecked() {
  const std::vector<Edit> chosen = m_edits.checked();
  close();
  if (remove) remove(chosen);
}

}  // namespace glossmill
