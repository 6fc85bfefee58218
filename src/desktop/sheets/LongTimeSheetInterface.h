#pragma once

#include <QTimer>
#include <string_view>

#include "desktop/Shell.h"
#include "desktop/host/WidgetControls.h"
#include "desktop/host/WidgetProgressIndicator.h"
#include "desktop/sheets/SheetContent.h"
#include "platform/InterfaceFiles.h"
#include "project/ProjectWindowController.h"
#include "ui_LongTimeSheet.h"

namespace glossmill {

/// The loaded progress sheet. Its button cancels the job; when that has ended and left the sheet up, the button closes
/// it, and the project.
class LongTimeSheetInterface : public LoadedInterface {
 public:
  LongTimeSheetInterface(ProjectWindowController& project, const Shell& shell);

  LongTimeSheetOutlets outlets() { return {&m_sheet, &m_title, &m_indicator}; }

 private:
  void buttonClicked();
  void lookAfterJob();
  void setButton(std::string_view titleKey);

  ProjectWindowController& m_project;
  const HostThreads& m_threads;
  const Bundle& m_bundle;
  QTimer m_afterCancel;  ///< while a job that was cancelled may still be at work
  bool m_closes = false;
  Ui::LongTimeSheet m_widgets;
  SheetContent m_sheet;
  WidgetTextField m_title;
  WidgetProgressIndicator m_indicator;
};

}  // namespace glossmill
