#pragma once

#include <QLabel>
#include <QLineEdit>

#include "app/ReferenceText.h"
#include "app/StringOrder.h"
#include "app/StringSearch.h"
#include "app/ViewFilter.h"
#include "desktop/host/WidgetControls.h"
#include "desktop/tables/ColumnTableModel.h"
#include "desktop/tables/RecordTable.h"
#include "desktop/windows/OnlyButton.h"
#include "desktop/windows/StringTableColumns.h"
#include "desktop/windows/TablePopUp.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The widgets of the string table; they outlive the pane.
struct StringPaneWidgets {
  QTableView& table;
  QLabel& count;
  QComboBox& filter;
  QComboBox& tables;
  QPushButton& only;
  QLineEdit& search;
};

/// The string table with its filter, the parts of its view, and its count.
class StringPane {
 public:
  /// All of it outlives the pane.
  StringPane(const StringPaneWidgets& widgets, ProjectWindowController& project, const ReferenceText& reference,
             const Bundle& bundle);

  RecordTable& table() { return m_table; }
  StringTableColumns& columns() { return m_columns; }
  /// Another text is shown beside the translations.
  void referenceChanged();
  PopUpButton& filterPopUp() { return m_filter; }
  void stringsChanged(ArrayChange change);
  /// Another language was selected, or a job is over.
  void translationsChanged();
  void translationEdited();
  void focusSearch();
  /// Escape in the search field: empties it, or leaves it when it is empty.
  void leaveSearch();

 private:
  void showCount();
  void offerColumns();

  StringPaneWidgets m_widgets;
  ProjectWindowController& m_project;
  const Bundle& m_bundle;
  const ReferenceText& m_reference;
  ColumnTableModel<LocalizeString> m_model;
  RecordTable m_table;
  WidgetPopUpButton m_filter;
  ViewFilter m_view;
  StringSearch m_search;
  TablePopUp m_tables;
  OnlyButton m_only;
  StringOrder m_order;
  StringTableColumns m_columns;
};

}  // namespace glossmill
