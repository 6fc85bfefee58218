#pragma once

#include "desktop/host/WidgetControls.h"
#include "desktop/sheets/SheetContent.h"
#include "desktop/tables/ColumnTableModel.h"
#include "desktop/tables/RecordTable.h"
#include "dialogs/SelectLanguageWindowController.h"
#include "platform/InterfaceFiles.h"
#include "ui_SelectLanguageWindowController.h"

namespace glossmill {

/// The loaded add-language dialog.
class SelectLanguageInterface : public LoadedInterface {
 public:
  SelectLanguageInterface(SelectLanguageWindowController& dialog, const Bundle& bundle);

  SelectLanguageWindowOutlets outlets() { return {&m_sheet, &m_table, &m_isoPopUp}; }

 private:
  void connectControls();
  void search(const QString& text);
  void selectSomething();
  void showCount();
  void setUpTables();

  SelectLanguageWindowController& m_dialog;
  const Bundle& m_bundle;
  ColumnTableModel<Language> m_model;
  Ui::SelectLanguageWindowController m_widgets;
  SheetContent m_sheet;
  RecordTable m_table;
  WidgetPopUpButton m_isoPopUp;
};

}  // namespace glossmill
