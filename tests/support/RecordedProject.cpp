#include "support/RecordedProject.h"

namespace glossmill {

namespace {

template <typename T>
std::string rowsOf(const ArrayController<T>& controller) {
  const std::optional<std::size_t> row = controller.selectedRow();
  return std::to_string(controller.arrangedCount()) + (row ? ", selected " + std::to_string(*row) : "");
}

}  // namespace

RecordedProject::RecordedProject(EmbeddedBundle::StringsTable strings)
    : recording(std::move(strings)), project(std::make_unique<ProjectWindowController>(recording.parts(), services)) {
  project->showWindow();
  watch();
  calls.clear();
}

void RecordedProject::watch() {
  project->stringController().addObserver(
      [this](ArrayChange) { calls.addOnMainThread("string rows", rowsOf(project->stringController())); });
  project->languageController().addObserver(
      [this](ArrayChange) { calls.addOnMainThread("language rows", rowsOf(project->languageController())); });
  m_opened = "not opened";
  m_heldBack = "0 held back";
  m_files = "0 files";
  calls.beforeLine = [this] {
    if (project) tellState();
  };
}

void RecordedProject::tellState() {
  const auto tell = [this](std::string& former, const std::string& now) {
    if (former == now) return;
    former = now;
    calls.add("state", now);
  };
  tell(m_files, std::to_string(project->fileList().size()) + " files");
  tell(m_heldBack, std::to_string(project->filteredStringList().size()) + " held back");
  tell(m_opened, project->opened() ? "opened" : "not opened");
}

Lines RecordedProject::sheetEnds() {
  return {
      "long-time sheet: order out", "sheets: end long-time sheet", "sheets: did end long-time sheet",
      "long-time sheet: order out", "sheets: end long-time sheet",
  };
}

void RecordedProject::begin() {
  panels().willChoose(kDirectory);
  EXPECT_TRUE(project->openProject(FileUrl()));
}

void RecordedProject::open() {
  begin();
  runUntilIdle();
}

void RecordedProject::openUnrecorded() {
  open();
  ASSERT_TRUE(project->opened());
  tellState();
  calls.clear();
}

}  // namespace glossmill
