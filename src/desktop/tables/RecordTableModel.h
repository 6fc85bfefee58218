#pragma once

#include <QAbstractTableModel>
#include <QStringList>

namespace glossmill {

/// A thin window on rows that are arranged elsewhere: it holds their number and the column titles, and asks for the
/// text of a cell when that cell is drawn.
class RecordTableModel : public QAbstractTableModel {
 public:
  explicit RecordTableModel(QStringList titles) : m_titles(std::move(titles)) {}

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
  QStringList m_titles;
  int m_rows = 0;
  bool m_held = false;
};

}  // namespace glossmill
