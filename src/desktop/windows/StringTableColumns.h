#pragma once

#include <QMenu>
#include <QTableView>
#include <functional>
#include <set>

#include "app/StringOrder.h"
#include "desktop/tables/ElasticColumns.h"

namespace glossmill {

/// What the user does with the columns of the string table: sorts by a click on a head, moves and sizes them, shows and
/// hides them in a menu. Remembered from run to run. All of it outlives this.
class StringTableColumns {
 public:
  StringTableColumns(QTableView& table, StringOrder& order);

  /// A column that has nothing to say is not shown, whatever the user chose.
  void setOffered(int column, bool offered);
  /// To be called once the widths and places of the last run are there.
  void restore();
  void save() const;
  bool isSorted() const { return m_sorted >= 0; }
  /// A check mark for each column but the first.
  QMenu& menu() { return m_menu; }

 private:
  void fillMenu();
  void switchColumn(int column, bool shown);
  void showColumn(int column);
  void headClicked(int column);
  void sort(int column, bool descending);
  void stopSorting();

  QTableView& m_table;
  StringOrder& m_order;
  ElasticColumns& m_elastic;
  QMenu m_menu;
  std::set<int> m_hidden;      ///< by the user
  std::set<int> m_notOffered;  ///< by the project
  int m_sorted = -1;           ///< the column; none
  bool m_isDescending = false;
};

}  // namespace glossmill
