#pragma once

#include <QLabel>

#include "desktop/tables/ColumnTableModel.h"
#include "desktop/tables/RecordTable.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The language table of the project window with its count. The widgets outlive it.
class LanguagePane {
 public:
  LanguagePane(QTableView& view, QLabel& count, ProjectWindowController& project, const Bundle& bundle);

  RecordTable& table() { return m_table; }
  void languagesChanged(ArrayChange change);
  void redraw() { m_table.redraw(); }

 private:
  void showCount();

  QLabel& m_count;
  ProjectWindowController& m_project;
  const Bundle& m_bundle;
  ColumnTableModel<Language> m_model;
  RecordTable m_table;
};

}  // namespace glossmill
