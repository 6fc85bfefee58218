#include "desktop/host/WidgetInterfaceFiles.h"

#include "desktop/sheets/LanguageWindowInterface.h"
#include "desktop/sheets/LongTimeSheetInterface.h"
#include "desktop/sheets/SelectLanguageInterface.h"
#include "desktop/windows/LogWindowInterface.h"
#include "desktop/windows/ProjectWindowInterface.h"

namespace glossmill {

namespace {

template <typename Outlets, typename Loaded>
Interface<Outlets> connected(std::unique_ptr<Loaded> loaded) {
  const Outlets outlets = loaded->outlets();
  return {std::move(loaded), outlets};
}

}  // namespace

Interface<ProjectWindowOutlets> WidgetInterfaceFiles::loadProjectWindow(ProjectWindowController& owner) {
  m_project = &owner;
  return connected<ProjectWindowOutlets>(std::make_unique<ProjectWindowInterface>(owner, m_shell));
}

Interface<LongTimeSheetOutlets> WidgetInterfaceFiles::loadLongTimeSheet(ProjectWindowController& owner) {
  return connected<LongTimeSheetOutlets>(std::make_unique<LongTimeSheetInterface>(owner, m_shell));
}

Interface<LogWindowOutlets> WidgetInterfaceFiles::loadLogWindow(LogWindowController& owner) {
  auto loaded = std::make_unique<LogWindowInterface>(owner);
  m_logWindow = loaded.get();
  return connected<LogWindowOutlets>(std::move(loaded));
}

Interface<LanguageWindowOutlets> WidgetInterfaceFiles::loadLanguageWindow(std::string_view name,
                                                                          LanguageWindowController& owner) {
  return connected<LanguageWindowOutlets>(
      std::make_unique<LanguageWindowInterface>(loadLanguageWindowWidgets(name), owner, *m_project, m_shell.bundle));
}

Interface<SelectLanguageWindowOutlets> WidgetInterfaceFiles::loadSelectLanguageWindow(
    SelectLanguageWindowController& owner) {
  return connected<SelectLanguageWindowOutlets>(std::make_unique<SelectLanguageInterface>(owner, m_shell.bundle));
}

void WidgetInterfaceFiles::activateLogWindow() {
  if (m_logWindow) m_logWindow->makeKeyAndOrderFront();
}

}  // namespace glossmill
