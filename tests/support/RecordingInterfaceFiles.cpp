#include <memory>

#include "support/RecordingControls.h"
#include "support/RecordingParts.h"

namespace glossmill {

namespace {

struct ProjectControls {
  ProjectControls(CallRecorder& calls, const ProjectWindowOutlets& inner)
      : window(calls, "project window", *inner.window),
        stringTableView(calls, "string table", *inner.stringTableView),
        languageTableView(calls, "language table", *inner.languageTableView),
        translationTextView(calls, "editor", *inner.translationTextView),
        stringFilterPopUp(calls, "filter", *inner.stringFilterPopUp) {}
  ProjectWindowOutlets outlets() {
    return {&window, &stringTableView, &languageTableView, &translationTextView, &stringFilterPopUp};
  }

  RecordingWindow window;
  RecordingTableView stringTableView;
  RecordingTableView languageTableView;
  RecordingTranslationTextView translationTextView;
  RecordingPopUpButton stringFilterPopUp;
};

struct LongTimeControls {
  LongTimeControls(CallRecorder& calls, const LongTimeSheetOutlets& inner)
      : window(calls, "long-time sheet", *inner.longTimeSheet),
        title(calls, "sheet title", *inner.longTimeSheetTitle),
        indicator(calls, "indicator", *inner.longTimeIndicator) {}
  LongTimeSheetOutlets outlets() { return {&window, &title, &indicator}; }

  RecordingWindow window;
  RecordingTextField title;
  RecordingProgressIndicator indicator;
};

struct LogControls {
  LogControls(CallRecorder& calls, const LogWindowOutlets& inner)
      : window(calls, "log window", *inner.window), textView(calls, "log view", *inner.textView) {}
  LogWindowOutlets outlets() { return {&window, &textView}; }

  RecordingWindow window;
  RecordingLogTextView textView;
};

struct ChooserControls {
  ChooserControls(CallRecorder& calls, std::string_view name, const LanguageWindowOutlets& inner)
      : window(calls, std::string(name), *inner.window),
        tableView(calls, "chooser table", *inner.tableView),
        checkButton(inner.checkButton) {}
  LanguageWindowOutlets outlets() { return {&window, &tableView, checkButton}; }

  RecordingWindow window;
  RecordingTableView tableView;
  CheckButton* checkButton;
};

struct SelectLanguageControls {
  SelectLanguageControls(CallRecorder& calls, const SelectLanguageWindowOutlets& inner)
      : window(calls, "add-language sheet", *inner.window),
        tableView(calls, "ISO table", *inner.tableView),
        isoPopUpButton(calls, "code lengths", *inner.isoPopUpButton) {}
  SelectLanguageWindowOutlets outlets() { return {&window, &tableView, &isoPopUpButton}; }

  RecordingWindow window;
  RecordingTableView tableView;
  RecordingPopUpButton isoPopUpButton;
};

template <typename Controls>
class RecordedInterface : public LoadedInterface {
 public:
  template <typename... Arguments>
  explicit RecordedInterface(std::unique_ptr<LoadedInterface> inner, Arguments&&... arguments)
      : m_inner(std::move(inner)), controls(std::forward<Arguments>(arguments)...) {}

 private:
  std::unique_ptr<LoadedInterface> m_inner;

 public:
  Controls controls;
};

/// The recording controls in the place of those of a loaded interface file, which lives as long as they do.
template <typename Controls, typename Outlets, typename... Name>
Interface<Outlets> recorded(CallRecorder& calls, Interface<Outlets> inner, Name... name) {
  auto kept = std::make_unique<RecordedInterface<Controls>>(std::move(inner.loaded), calls, name..., inner.outlets);
  const Outlets outlets = kept->controls.outlets();
  return {std::move(kept), outlets};
}

}  // namespace

Interface<ProjectWindowOutlets> RecordingInterfaceFiles::loadProjectWindow(ProjectWindowController& owner) {
  m_calls.addOnMainThread("interface files", "load ProjectWindowController");
  return recorded<ProjectControls>(m_calls, m_inner.loadProjectWindow(owner));
}

Interface<LongTimeSheetOutlets> RecordingInterfaceFiles::loadLongTimeSheet(ProjectWindowController& owner) {
  m_calls.addOnMainThread("interface files", "load LongTimeSheet");
  return recorded<LongTimeControls>(m_calls, m_inner.loadLongTimeSheet(owner));
}

Interface<LogWindowOutlets> RecordingInterfaceFiles::loadLogWindow(LogWindowController& owner) {
  m_calls.addOnMainThread("interface files", "load LogWindowController");
  return recorded<LogControls>(m_calls, m_inner.loadLogWindow(owner));
}

Interface<LanguageWindowOutlets> RecordingInterfaceFiles::loadLanguageWindow(std::string_view name,
                                                                             LanguageWindowController& owner) {
  m_calls.addOnMainThread("interface files", "load " + std::string(name));
  return recorded<ChooserControls>(m_calls, m_inner.loadLanguageWindow(name, owner), name);
}

Interface<SelectLanguageWindowOutlets> RecordingInterfaceFiles::loadSelectLanguageWindow(
    SelectLanguageWindowController& owner) {
  m_calls.addOnMainThread("interface files", "load SelectLanguageWindowController");
  return recorded<SelectLanguageControls>(m_calls, m_inner.loadSelectLanguageWindow(owner));
}

}  // namespace glossmill
