#include "desktop/tables/RecordTableModel.h"

namespace glossmill {

int RecordTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_heads.size());
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto column = static_cast<std::size_t>(section);
  if (orientation != Qt::Horizontal || column >= m_heads.size()) return {};
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? m_heads[column].title : QVariant();
}

QVariant RecordTableModel::data(const QModelIndex& index, int role) const {
  if (m_held || !index.isValid()) return {};
  return cell(static_cast<std::size_t>(index.row()), index.column(), role);
}

void RecordTableModel::reset(std::size_t rows) {
  beginResetModel();
  m_held = false;
  m_rows = static_cast<int>(rows);
  endResetModel();
}

void RecordTableModel::redraw() {
  if (m_rows > 0) Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1));
}

void RecordTableModel::redrawRow(std::size_t row) {
  const int number = static_cast<int>(row);
  if (number < m_rows) Q_EMIT dataChanged(index(number, 0), index(number, columnCount() - 1));
}

}  // namespace glossmill
