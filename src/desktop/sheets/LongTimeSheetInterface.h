#pragma once

#include "desktop/host/WidgetControls.h"
#include "desktop/host/WidgetProgressIndicator.h"
#include "desktop/sheets/SheetContent.h"
#include "platform/InterfaceFiles.h"
#include "project/ProjectWindowController.h"
#include "ui_LongTimeSheet.h"

namespace glossmill {

/// The loaded progress sheet.
class LongTimeSheetInterface : public LoadedInterface {
 public:
  explicit LongTimeSheetInterface(ProjectWindowController& project);

  LongTimeSheetOutlets outlets() { return {&m_sheet, &m_title, &m_indicator}; }

 private:
  Ui::LongTimeSheet m_widgets;
  SheetContent m_sheet;
  WidgetTextField m_title;
  WidgetProgressIndicator m_indicator;
};

}  // namespace glossmill
