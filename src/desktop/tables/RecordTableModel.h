#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <utility>
#include <vector>

#include "desktop/tables/Column.h"

namespace glossmill {

/// What a table knows of a column before it asks for a cell.
struct ColumnHead {
  QString title;
  int width = 0;  ///< pixels
  ColumnFit fit = ColumnFit::Width;
  bool isBar = false;  ///< drawn as a bar, by the role of percentages
  int place = -1;      ///< from the left, where it is another than its number
};

/// A thin window on rows that are arranged elsewhere: it holds their number and the heads of the columns, and asks for
/// the text of a cell when that cell is drawn.
class RecordTableModel : public QAbstractTableModel {
 public:
  /// The role of a whole number from 0 to 100, for the bar of a column.
  static constexpr int kPercentRole = Qt::UserRole;

  explicit RecordTableModel(std::vector<ColumnHead> heads) : m_heads(std::move(heads)) {}

  const std::vector<ColumnHead>& heads() const { return m_heads; }

  int rowCount(const QModelIndex& parent = QModelIndex()) const override { return parent.isValid() ? 0 : m_rows; }
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  /// Between hold() and the next reset() or release() no record is read: cells are empty.
  void hold() { m_held = true; }
  void release() { m_held = false; }
  bool isHeld() const { return m_held; }
  /// The rows are others, or in another order.
  void reset(std::size_t rows);
  /// The rows are the same, but what they show has changed.
  void redraw();
  void redrawRow(std::size_t row);

 protected:
  virtual QVariant cell(std::size_t row, int column, int role) const = 0;

 private:
  const std::vector<ColumnHead> m_heads;
  int m_rows = 0;
  bool m_held = false;
};

}  // namespace glossmill
