#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <functional>

#include "desktop/windows/CheckedEdits.h"

namespace glossmill {

/// Shows the entries that nothing in the sources uses, and removes those that are checked. Deletes itself when it is
/// closed.
class UnusedEntriesWindow : public QDialog {
 public:
  /// `edits` take the entries out.
  UnusedEntriesWindow(std::vector<Edit> edits, const Bundle& bundle, QWidget* parent);

  /// Applies what was chosen.
  std::function<void(const std::vector<Edit>&)> remove;

 private:
  void setUpTable();
  void layOut();
  QLayout* buttonRow();
  void showCount();
  void checkAll();
  void switchSelected();
  void removeChecked();
  QString text(std::string_view key) const;

  const Bundle& m_bundle;
  CheckedEdits m_edits;
  QLabel* m_explanation;
  QTableView* m_table;
  QCheckBox* m_all;
  QPushButton* m_remove;
  QPushButton* m_cancel;
};

}  // namespace glossmill
