#include "desktop/windows/StringTableColumns.h"

#include <QHeaderView>
#include <QSettings>
#include <utility>

#include "desktop/host/QtText.h"
#include "model/Settings.h"

namespace glossmill {

namespace {

constexpr int kKeyColumn = 0;

/// The columns of texts, which take what the table becomes wider; the one that gets too narrow first comes first.
const std::vector<int> kTexts = {static_cast<int>(SortKey::Comment), static_cast<int>(SortKey::Key),
                                 static_cast<int>(SortKey::Translation), static_cast<int>(SortKey::Source)};

QString keyFor(const QString& part) {
  return toQt(setting(SettingId::WindowLayout).key) + QStringLiteral("/stringColumns/") + part;
}

}  // namespace

StringTableColumns::StringTableColumns(QTableView& table, StringOrder& order)
    : m_table(table), m_order(order), m_elastic(*new ElasticColumns(table, kTexts)) {
  QHeaderView& header = *table.horizontalHeader();
  header.setSectionsMovable(true);
  header.setSectionsClickable(true);
  header.setFirstSectionMovable(true);
  header.setContextMenuPolicy(Qt::CustomContextMenu);
  fillMenu();
  QObject::connect(&header, &QHeaderView::sectionClicked, &m_menu, [this](int column) { headClicked(column); });
  QObject::connect(&header, &QWidget::customContextMenuRequested, &m_menu,
                   [this, &header](const QPoint& place) { m_menu.popup(header.mapToGlobal(place)); });
}

/// Without the keys nobody would know what the rest is about.
void StringTableColumns::fillMenu() {
  const QAbstractItemModel& model = *m_table.model();
  for (int column = 0; column < model.columnCount(); ++column) {
    QAction* action = m_menu.addAction(model.headerData(column, Qt::Horizontal).toString());
    action->setCheckable(true);
    action->setChecked(true);
    action->setVisible(column != kKeyColumn);
    QObject::connect(action, &QAction::toggled, &m_menu, [this, column](bool shown) { switchColumn(column, shown); });
  }
}

void StringTableColumns::switchColumn(int column, bool shown) {
  shown ? m_hidden.erase(column) : static_cast<std::size_t>(m_hidden.insert(column).second);
  showColumn(column);
}

void StringTableColumns::setOffered(int column, bool offered) {
  offered ? m_notOffered.erase(column) : static_cast<std::size_t>(m_notOffered.insert(column).second);
  m_menu.actions().at(column)->setVisible(offered && column != kKeyColumn);
  showColumn(column);
}

void StringTableColumns::showColumn(int column) {
  const bool hidden = m_hidden.contains(column) || m_notOffered.contains(column);
  if (m_table.isColumnHidden(column) == hidden) return;
  m_table.setColumnHidden(column, hidden);
  if (hidden && m_sorted == column) stopSorting();
  if (m_table.isVisible()) m_elastic.fill();
}

/// Up, down, and with the third click the order of the sources again.
void StringTableColumns::headClicked(int column) {
  const bool isSortedByIt = m_sorted == column;
  if (isSortedByIt && m_isDescending) return stopSorting();
  sort(column, isSortedByIt);
}

/// A header with an arrow has turned it round by itself when it tells of a click.
void StringTableColumns::sort(int column, bool descending) {
  m_sorted = column;
  m_isDescending = descending;
  m_table.horizontalHeader()->setSortIndicatorShown(true);
  m_table.horizontalHeader()->setSortIndicator(column, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
  m_order.sortBy(static_cast<SortKey>(column), descending);
}

void StringTableColumns::stopSorting() {
  m_sorted = -1;
  m_table.horizontalHeader()->setSortIndicatorShown(false);
  m_order.clear();
}

void StringTableColumns::restore() {
  const QSettings settings;
  for (const QString& column : settings.value(keyFor(QStringLiteral("hidden"))).toStringList()) {
    const int number = column.toInt();
    if (number > kKeyColumn && number < m_menu.actions().size()) m_menu.actions().at(number)->setChecked(false);
  }
  for (int column = 0; column < m_menu.actions().size(); ++column) showColumn(column);
  if (!settings.contains(keyFor(QStringLiteral("sorted")))) return;
  m_elastic.keepWidths();
  const int sorted = settings.value(keyFor(QStringLiteral("sorted")), -1).toInt();
  if (sorted < 0 || sorted >= m_menu.actions().size()) return;
  sort(sorted, settings.value(keyFor(QStringLiteral("descending"))).toBool());
}

void StringTableColumns::save() const {
  QSettings settings;
  QStringList hidden;
  for (const int column : m_hidden) hidden.append(QString::number(column));
  settings.setValue(keyFor(QStringLiteral("hidden")), hidden);
  settings.setValue(keyFor(QStringLiteral("sorted")), m_sorted);
  settings.setValue(keyFor(QStringLiteral("descending")), m_isDescending);
}

}  // namespace glossmill
