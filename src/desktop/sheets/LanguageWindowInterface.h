#pragma once

#include <memory>

#include "desktop/host/WidgetControls.h"
#include "desktop/sheets/SheetContent.h"
#include "desktop/tables/ColumnTableModel.h"
#include "desktop/tables/RecordTable.h"
#include "dialogs/LanguageWindowController.h"
#include "platform/InterfaceFiles.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The loaded chooser of one of the project's languages, with or without a check box.
class LanguageWindowInterface : public LoadedInterface {
 public:
  /// The widgets of the interface file; `check` is null in the form without a check box.
  struct Widgets {
    std::unique_ptr<QWidget> sheet;
    QTableView& table;
    QPushButton& done;
    QPushButton& cancel;
    QCheckBox* check;
  };

  LanguageWindowInterface(Widgets widgets, LanguageWindowController& dialog, ProjectWindowController& project,
                          const Bundle& bundle);

  LanguageWindowOutlets outlets() { return {&m_sheet, &m_table, m_check.get()}; }

 private:
  ColumnTableModel<Language> m_model;
  SheetContent m_sheet;
  RecordTable m_table;
  std::unique_ptr<WidgetCheckButton> m_check;
};

/// The widgets of the interface file with this name.
LanguageWindowInterface::Widgets loadLanguageWindowWidgets(std::string_view name);

}  // namespace glossmill
