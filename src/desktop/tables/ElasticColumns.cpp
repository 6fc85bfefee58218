#include "desktop/tables/ElasticColumns.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <algorithm>
#include <utility>

namespace glossmill {

namespace {

constexpr int kNarrowest = 60;

}  // namespace

ElasticColumns::ElasticColumns(QTableView& table, std::vector<int> columns)
    : QObject(&table), m_table(table), m_columns(std::move(columns)) {
  table.viewport()->installEventFilter(this);
}

/// What a table is given before it is shown first is nothing that a user has seen.
bool ElasticColumns::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && m_wasShown) {
    const auto& resize = static_cast<const QResizeEvent&>(*event);
    distribute(resize.size().width() - resize.oldSize().width());
  }
  if (event->type() == QEvent::Show && !std::exchange(m_wasShown, true) && !m_keepsWidths) fill();
  return QObject::eventFilter(watched, event);
}

void ElasticColumns::fill() {
  distribute(m_table.viewport()->width() - m_table.horizontalHeader()->length());
}

void ElasticColumns::distribute(int extra) {
  QHeaderView& header = *m_table.horizontalHeader();
  int whole = 0;
  for (const int column : m_columns) whole += header.sectionSize(column);
  for (const int column : m_columns) {
    const int width = header.sectionSize(column);
    if (width == 0) continue;
    const int share = static_cast<int>(static_cast<qint64>(extra) * width / whole);
    const int narrowest = std::max(kNarrowest, header.sectionSizeHint(column));
    const int wanted = std::max(width + share, std::min(width, narrowest));
    header.resizeSection(column, wanted);
    extra -= wanted - width;
    whole -= width;
    if (whole == 0) break;
  }
}

}  // namespace glossmill
