#pragma once

#include <QObject>
#include <QTableView>
#include <vector>

namespace glossmill {

/// Gives the columns of texts what a table becomes wider, and takes from them what it becomes narrower, each in
/// proportion to its width; every column can still be sized by hand. Belongs to the table.
class ElasticColumns : public QObject {
 public:
  /// `columns` by their numbers.
  ElasticColumns(QTableView& table, std::vector<int> columns);

  /// The widths are those that the user gave; otherwise the columns fill the table when it is shown first.
  void keepWidths() { m_keepsWidths = true; }
  /// Makes all columns together as wide as the table.
  void fill();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void distribute(int extra);

  QTableView& m_table;
  const std::vector<int> m_columns;
  bool m_keepsWidths = false;
  bool m_wasShown = false;
};

}  // namespace glossmill
