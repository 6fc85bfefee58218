#include "desktop/windows/CheckedEdits.h"

#include <algorithm>
#include <array>
#include <utility>

#include "desktop/host/ForeignText.h"
#include "desktop/host/QtText.h"
#include "desktop/tables/CellText.h"
#include "model/LocalizeString.h"

namespace glossmill {

CheckedEdits::CheckedEdits(std::vector<Edit> edits, const Bundle& bundle)
    : m_edits(std::move(edits)), m_bundle(bundle), m_checked(m_edits.size(), true), m_checkedCount(m_edits.size()) {}

std::vector<Edit> CheckedEdits::checked() const {
  std::vector<Edit> edits;
  for (std::size_t row = 0; row < m_edits.size(); ++row) {
    if (m_checked[row]) edits.push_back(m_edits[row]);
  }
  return edits;
}

void CheckedEdits::checkAll(bool checked) {
  std::fill(m_checked.begin(), m_checked.end(), checked);
  m_checkedCount = checked ? m_edits.size() : 0;
  if (!m_edits.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
}

int CheckedEdits::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_edits.size());
}

QVariant CheckedEdits::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if (!index.isValid() || row >= m_edits.size()) return {};
  if (role == Qt::DisplayRole) return text(m_edits[row], index.column());
  if (role == Qt::ToolTipRole) return toolTipText(text(m_edits[row], index.column()));
  if (role == Qt::CheckStateRole && index.column() == LanguageColumn) {
    return m_checked[row] ? Qt::Checked : Qt::Unchecked;
  }
  return {};
}

QString CheckedEdits::text(const Edit& edit, int column) const {
  const TableRow* row = edit.record->tableRow();
  switch (column) {
    case LanguageColumn:
      return cellText(edit.language.text());
    case TableColumn:
      return row ? cellText(row->table->id) : QString();
    case KeyColumn:
      return cellText(edit.record->name());
    default:
      return cellText(edit.before.value_or(""));
  }
}

bool CheckedEdits::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || index.column() != LanguageColumn) return false;
  const auto row = static_cast<std::size_t>(index.row());
  const bool checked = value.toInt() == Qt::Checked;
  if (m_checked[row] != checked) checked ? ++m_checkedCount : --m_checkedCount;
  m_checked[row] = checked;
  Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
  return true;
}

QVariant CheckedEdits::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeading | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  const auto text = [this](std::string_view key) { return toQt(m_bundle.localizedString(key)); };
  const std::array titles = {text("Language"), text("Table"), text("Key"), text("Text")};
  return titles.at(static_cast<std::size_t>(section));
}

Qt::ItemFlags CheckedEdits::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.column() == LanguageColumn ? flags | Qt::ItemIsUserCheckable : flags;
}

}  // namespace glossmill
