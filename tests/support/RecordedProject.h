#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "project/ProjectWindowController.h"
#include "support/RecordingHost.h"

namespace glossmill {

/// A project window over a recording host. Beside the calls the list has a line whenever a controller's rows or their
/// selection changed ("string rows", "language rows"), and, before the next line, whenever a project was opened or
/// emptied, or its files or the held-back strings became others ("state"). The project lies in /P/Harbour.app.
class RecordedProject {
 public:
  static constexpr const char* kDirectory = "/P/Harbour.app";

  explicit RecordedProject(EmbeddedBundle::StringsTable strings = {});
  RecordedProject(const RecordedProject&) = delete;
  RecordedProject& operator=(const RecordedProject&) = delete;
  /// Destroying the controller is recorded as well.
  ~RecordedProject() = default;

  /// What closing the long-time sheet looks like: the end of it closes it once more.
  static Lines sheetEnds();

  // ---- The disk; paths are relative to the project ----

  void addFile(std::string_view path, std::string_view bytes = {}) { disk().addFile(inProject(path), bytes); }
  void addDirectory(std::string_view path) { disk().addDirectory(inProject(path)); }
  static std::string inProject(std::string_view path) { return std::string(kDirectory) + "/" + std::string(path); }
  static std::string stringsFile(std::string_view code) {
    return inProject(std::string(code) + ".lproj/Localizable.strings");
  }
  InMemoryFiles& disk() { return recording.host.files; }

  // ---- What a user does ----

  /// Chooses the project directory in the panel; the scan's job is held back.
  void begin();
  /// begin(), and the scan to its end.
  void open();
  /// Opens what is there and then forgets the calls so far.
  void openUnrecorded();
  void runUntilIdle() { recording.runUntilIdle(); }

  ScriptedPanels& panels() { return recording.host.panels; }
  HeadlessProjectWindow& window() { return *recording.host.interfaces.projectWindow(); }
  bool sheetIsUp() { return recording.host.sheets.count() > 0; }
  std::shared_ptr<Language> language(std::size_t row) { return project->languagesList()->at(row); }

  RecordingHost recording;
  CallRecorder& calls = recording.calls;
  RecordingServices services{recording.calls};
  std::unique_ptr<ProjectWindowController> project;

 private:
  void watch();
  void tellState();

  std::string m_opened;
  std::string m_heldBack;
  std::string m_files;
};

}  // namespace glossmill
