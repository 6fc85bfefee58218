#include "desktop/tables/RecordTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <utility>

#include "desktop/tables/CellDelegate.h"
#include "desktop/tables/PercentBarDelegate.h"

namespace glossmill {

namespace {

void setUp(QTableView& view) {
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  view.setSelectionMode(QAbstractItemView::SingleSelection);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  view.setWordWrap(false);
  view.setTabKeyNavigation(false);
  view.setItemDelegate(new CellDelegate(&view));
  view.setCornerButtonEnabled(false);
  view.verticalHeader()->hide();
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 8);
  view.horizontalHeader()->setHighlightSections(false);
}

/// The last column keeps an edge to its left that can be dragged.
void takeTheRest(QHeaderView& header, int column) {
  if (header.visualIndex(column) + 1 == header.count()) {
    header.setStretchLastSection(true);
  } else {
    header.setSectionResizeMode(column, QHeaderView::Stretch);
  }
}

void setUpColumns(QTableView& view, const std::vector<ColumnHead>& heads) {
  QHeaderView& header = *view.horizontalHeader();
  for (int column = 0; column < header.count(); ++column) {
    const int place = heads[static_cast<std::size_t>(column)].place;
    if (place >= 0) header.moveSection(header.visualIndex(column), place);
  }
  int column = 0;
  for (const ColumnHead& head : heads) {
    header.resizeSection(column, head.width);
    if (head.fit == ColumnFit::Rest) takeTheRest(header, column);
    if (head.isBar) view.setItemDelegateForColumn(column, new PercentBarDelegate(&view));
    ++column;
  }
}

}  // namespace

RecordTable::RecordTable(QTableView& view, RecordTableModel& model, std::unique_ptr<RowSource> rows,
                         std::function<bool()> isJobRunning)
    : m_view(view), m_model(model), m_rows(std::move(rows)), m_isJobRunning(std::move(isJobRunning)) {
  setUp(view);
  view.setModel(&model);
  setUpColumns(view, model.heads());
  view.installEventFilter(this);
  connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { selectionChanged(); });
  connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { rememberTop(); });
  connect(&view, &QTableView::doubleClicked, this, [this] {
    if (m_doubleAction) m_doubleAction();
  });
}

bool RecordTable::eventFilter(QObject* watched, QEvent* event) {
  const std::optional<std::size_t> row = event->type() == QEvent::KeyPress ? rowForKey(*event) : std::nullopt;
  if (!row) return QObject::eventFilter(watched, event);
  m_rows->select(*row);
  return true;
}

/// While nothing is selected the first arrow key selects the first row, and does not step over it. Home and End go to
/// the first and the last row: rows are what is selected here, not cells.
std::optional<std::size_t> RecordTable::rowForKey(const QEvent& event) const {
  if (m_model.isHeld() || m_rows->count() == 0) return std::nullopt;
  switch (static_cast<const QKeyEvent&>(event).key()) {
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return m_rows->count() - 1;
    case Qt::Key_Down:
    case Qt::Key_Up:
      return m_rows->selectedRow() ? std::nullopt : std::optional<std::size_t>(0);
    default:
      return std::nullopt;
  }
}

void RecordTable::beginUpdates() {
  ++m_depth;
  m_model.hold();
  settleSoon();
}

void RecordTable::endUpdates() {
  if (m_depth > 0) --m_depth;
  if (m_depth == 0) settle();
}

void RecordTable::reloadData() {
  change(ArrayChange::Content);
}

void RecordTable::change(ArrayChange change) {
  m_selectionWaits = true;
  if (change != ArrayChange::Selection) m_rowsWait = true;
  if (m_model.isHeld()) return;
  if (m_rowsWait) m_model.hold();
  settle();
}

void RecordTable::redrawSelected() {
  const auto row = m_rows->selectedRow();
  if (row && !m_model.isHeld()) m_model.redrawRow(*row);
}

void RecordTable::redraw() {
  if (!m_model.isHeld()) m_model.redraw();
}

void RecordTable::settleSoon() {
  if (std::exchange(m_settleQueued, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        m_settleQueued = false;
        settle();
      },
      Qt::QueuedConnection);
}

void RecordTable::settle() {
  if (m_isJobRunning && m_isJobRunning()) return;
  const bool wasHeld = m_model.isHeld();
  m_model.release();
  if (std::exchange(m_rowsWait, false)) {
    showRows();
  } else if (wasHeld) {
    m_model.redraw();
  }
  if (std::exchange(m_selectionWaits, false)) showSelection(Scrolling::ToSelection);
}

/// Whoever could see the selection before can see it afterwards; otherwise the topmost record stays where it was. In a
/// table that was empty the selection comes to the middle, as the window around it may still find its shape.
void RecordTable::showRows() {
  const bool wasEmpty = m_model.rowCount() == 0;
  const bool selectionWasVisible = isSelectionVisible();
  {
    const QScopedValueRollback syncing(m_syncing, true);
    m_model.reset(m_rows->count());
    restoreTop();
  }
  const Scrolling scrolling = selectionWasVisible ? Scrolling::ToSelection : Scrolling::Not;
  showSelection(wasEmpty ? Scrolling::ToMiddle : scrolling);
  m_selectionWaits = false;
}

void RecordTable::showSelection(Scrolling scrolling) {
  const QScopedValueRollback syncing(m_syncing, true);
  const auto row = m_rows->selectedRow();
  if (!row) {
    m_view.selectionModel()->clear();
    return;
  }
  const QModelIndex index = m_model.index(static_cast<int>(*row), std::max(m_view.currentIndex().column(), 0));
  m_view.setAutoScroll(false);
  m_view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  m_view.setAutoScroll(true);
  if (scrolling == Scrolling::ToSelection) m_view.scrollTo(index);
  if (scrolling == Scrolling::ToMiddle) m_view.scrollTo(index, QAbstractItemView::PositionAtCenter);
}

bool RecordTable::isSelectionVisible() const {
  const QModelIndex current = m_view.currentIndex();
  return current.isValid() && m_view.viewport()->rect().intersects(m_view.visualRect(current));
}

void RecordTable::selectionChanged() {
  if (m_syncing || m_model.isHeld()) return;
  const QModelIndexList rows = m_view.selectionModel()->selectedRows();
  if (rows.isEmpty()) {
    m_rows->select(std::nullopt);
  } else {
    m_rows->select(static_cast<std::size_t>(rows.front().row()));
  }
}

void RecordTable::rememberTop() {
  if (m_syncing || m_model.isHeld()) return;
  const auto top = static_cast<std::size_t>(std::max(m_view.verticalScrollBar()->value(), 0));
  m_topRecord = top > 0 && top < m_rows->count() ? m_rows->recordAt(top) : nullptr;
}

/// A reset scrolls to the top; a record that was there before comes back there, if it is still in the table.
void RecordTable::restoreTop() {
  if (!m_topRecord) return;
  for (std::size_t row = 0; row < m_rows->count(); ++row) {
    if (m_rows->recordAt(row) != m_topRecord) continue;
    m_view.scrollTo(m_model.index(static_cast<int>(row), 0), QAbstractItemView::PositionAtTop);
    return;
  }
}

}  // namespace glossmill
