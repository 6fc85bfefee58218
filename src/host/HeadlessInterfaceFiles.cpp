#include "host/HeadlessInterfaceFiles.h"

#include <algorithm>

namespace glossmill {

namespace {

template <typename Controls>
class KeptInterface : public LoadedInterface {
 public:
  explicit KeptInterface(std::shared_ptr<Controls> controls) : m_controls(std::move(controls)) {}

 private:
  std::shared_ptr<Controls> m_controls;
};

template <typename Outlets, typename Controls>
Interface<Outlets> connected(const std::shared_ptr<Controls>& controls, Outlets outlets) {
  return {std::make_unique<KeptInterface<Controls>>(controls), outlets};
}

template <typename Controls, typename Owner>
std::shared_ptr<Controls> ownedBy(Owner& owner) {
  auto controls = std::make_shared<Controls>();
  controls->owner = &owner;
  return controls;
}

}  // namespace

Interface<ProjectWindowOutlets> HeadlessInterfaceFiles::loadProjectWindow(ProjectWindowController& owner) {
  m_projectWindow = ownedBy<HeadlessProjectWindow>(owner);
  HeadlessProjectWindow& made = *m_projectWindow;
  return connected(m_projectWindow, ProjectWindowOutlets{&made.window, &made.stringTableView, &made.languageTableView,
                                                         &made.translationTextView, &made.stringFilterPopUp});
}

Interface<LongTimeSheetOutlets> HeadlessInterfaceFiles::loadLongTimeSheet(ProjectWindowController& owner) {
  m_longTimeSheet = ownedBy<HeadlessLongTimeSheet>(owner);
  HeadlessLongTimeSheet& made = *m_longTimeSheet;
  if (m_progressObserver) {
    made.title.changed = [observer = m_progressObserver, &made] { observer(made); };
    made.indicator.changed = made.title.changed;
  }
  return connected(m_longTimeSheet, LongTimeSheetOutlets{&made.window, &made.title, &made.indicator});
}

Interface<LogWindowOutlets> HeadlessInterfaceFiles::loadLogWindow(LogWindowController& owner) {
  m_logWindow = ownedBy<HeadlessLogWindow>(owner);
  HeadlessLogWindow& made = *m_logWindow;
  made.textView.changed = m_logObserver;
  return connected(m_logWindow, LogWindowOutlets{&made.window, &made.textView});
}

Interface<LanguageWindowOutlets> HeadlessInterfaceFiles::loadLanguageWindow(std::string_view name,
                                                                            LanguageWindowController& owner) {
  m_languageWindows.push_back(ownedBy<HeadlessLanguageWindow>(owner));
  HeadlessLanguageWindow& made = *m_languageWindows.back();
  made.name = name;
  HeadlessCheckButton* checkButton = name == "ExportLanguageWindowController" ? &made.checkButton : nullptr;
  return connected(m_languageWindows.back(), LanguageWindowOutlets{&made.window, &made.tableView, checkButton});
}

Interface<SelectLanguageWindowOutlets> HeadlessInterfaceFiles::loadSelectLanguageWindow(
    SelectLanguageWindowController& owner) {
  m_selectLanguageWindow = ownedBy<HeadlessSelectLanguageWindow>(owner);
  HeadlessSelectLanguageWindow& made = *m_selectLanguageWindow;
  return connected(m_selectLanguageWindow,
                   SelectLanguageWindowOutlets{&made.window, &made.tableView, &made.isoPopUpButton});
}

HeadlessLanguageWindow* HeadlessInterfaceFiles::languageWindow(const LanguageWindowController& owner) const {
  const auto found = std::find_if(m_languageWindows.rbegin(), m_languageWindows.rend(),
                                  [&owner](const auto& window) { return window->owner == &owner; });
  return found == m_languageWindows.rend() ? nullptr : found->get();
}

HeadlessLanguageWindow* HeadlessInterfaceFiles::languageWindow(const Window& window) const {
  const auto found = std::find_if(m_languageWindows.begin(), m_languageWindows.end(),
                                  [&window](const auto& made) { return &made->window == &window; });
  return found == m_languageWindows.end() ? nullptr : found->get();
}

}  // namespace glossmill
