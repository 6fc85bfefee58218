#include <gtest/gtest.h>

#include "safety/ProjectLock.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

using Kind = SaveRefusal::Kind;

constexpr const char* kReadGerman = "\"Open\" = \"Auf\";";
constexpr const char* kEditedElsewhere = "\"Open\" = \"Öffne\";";

/// One string in two languages, both with a strings file.
class ProtectedSaving : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Open", "Menu");
    m_test.addLanguage("de", kReadGerman);
    m_test.addLanguage("fr", "\"Open\" = \"Ouvrir\";");
    m_test.addLanguage("it");
    m_test.open();
  }
  ProjectWindowController& project() { return m_test.project(); }
  std::optional<Kind> refusal() {
    const auto& refusal = project().lastSave().refusal;
    return refusal ? std::optional(refusal->kind) : std::nullopt;
  }
  void editElsewhere() { m_test.host.files.addFile(stringsFileOf("de"), kEditedElsewhere); }
  /// So that a save does not wait.
  void openWithoutPatience() {
    ProjectOptions options;
    options.lockPatience = std::chrono::milliseconds(0);
    ASSERT_TRUE(project().openProjectAt(FileUrl(TestProject::kDirectory), options));
    m_test.host.runUntilIdle();
  }

  TestProject m_test;
};

TEST_F(ProtectedSaving, AsksOnceForAllFilesThatOthersHaveChanged) {
  editElsewhere();
  m_test.host.files.addFile(stringsFileOf("fr"), kEditedElsewhere);
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  EXPECT_TRUE(project().saveProject());
  ASSERT_EQ(m_test.host.panels.alerts.size(), 1U);
  const AlertRequest& question = m_test.host.panels.alerts.front();
  EXPECT_EQ(question.defaultButton, "Cancel");
  EXPECT_EQ(question.alternateButton, "Overwrite");
  EXPECT_EQ(question.otherButton, "Reload");
  EXPECT_EQ(question.escape, AlertAnswer::Default);
  for (const char* code : {"de", "fr"}) {
    EXPECT_NE(question.informativeText.find(stringsFileOf(code)), std::string::npos) << code;
  }
  EXPECT_EQ(m_test.savedFile("de"), "\n/* Menu */\n\"Open\" = \"Auf\"\n\n");
}

TEST_F(ProtectedSaving, ReadsTheProjectAnewWhereTheUserWantsThat) {
  m_test.select("Open", "fr");
  editElsewhere();
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  EXPECT_FALSE(project().saveProject());
  m_test.host.runUntilIdle();
  EXPECT_EQ(m_test.savedFile("de"), kEditedElsewhere);
  EXPECT_TRUE(project().opened());
  EXPECT_EQ(m_test.translation("Open", "de"), "Öffne");
  EXPECT_EQ(project().selectedLanguage()->iso639(), "fr");
  EXPECT_TRUE(project().saveProject());
}

TEST_F(ProtectedSaving, AsksBeforeEditsAreLostByReadingAnew) {
  m_test.select("Open", "it");
  m_test.type("Apri");
  editElsewhere();
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(project().saveProject());
  EXPECT_EQ(m_test.translation("Open", "it"), "Apri");
  EXPECT_TRUE(project().changed());
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  EXPECT_TRUE(project().reloadProject());
  m_test.host.runUntilIdle();
  EXPECT_EQ(m_test.translation("Open", "it"), std::nullopt);
  EXPECT_FALSE(project().changed());
}

TEST_F(ProtectedSaving, ReadsNothingAnewWhileNoProjectIsOpen) {
  project().closeProject();
  EXPECT_FALSE(project().reloadProject());
}

TEST_F(ProtectedSaving, WritesAVanishedFileWithoutAQuestion) {
  m_test.host.files.remove(stringsFileOf("de"));
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(m_test.savedFile("de"), "\n/* Menu */\n\"Open\" = \"Auf\"\n\n");
}

TEST_F(ProtectedSaving, IsRefusedWhileAnotherProgramWrites) {
  openWithoutPatience();
  project().setChanged(true);
  ProjectLock other(m_test.host.files, m_test.host.saves, FileUrl(TestProject::kDirectory));
  ASSERT_FALSE(other.acquire([] { return false; }).value());
  EXPECT_FALSE(project().saveProject());
  EXPECT_EQ(refusal(), Kind::Busy);
  EXPECT_EQ(project().lastSave().refusal->writer, 7);
  EXPECT_TRUE(m_test.host.panels.alerts.empty());
  EXPECT_TRUE(project().changed());
  EXPECT_EQ(m_test.savedFile("de"), kReadGerman);
  other.release();
  EXPECT_TRUE(project().saveProject());
}

TEST_F(ProtectedSaving, KeepsOthersAwayFromTheCheckToTheLastRename) {
  std::vector<bool> held;
  m_test.host.saves.onOperation = [&](const std::string& operation) {
    if (operation.find(".lproj") != std::string::npos) {
      held.push_back(m_test.host.saves.holdsLock());
    }
  };
  EXPECT_TRUE(project().saveProject());
  EXPECT_EQ(held, std::vector<bool>(6, true));
  EXPECT_FALSE(m_test.host.saves.holdsLock());
}

TEST_F(ProtectedSaving, KeepsNobodyAwayWhileAQuestionWaits) {
  editElsewhere();
  m_test.host.panels.onAlert = [this](const AlertRequest&) { EXPECT_FALSE(m_test.host.saves.holdsLock()); };
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  EXPECT_TRUE(project().saveProject());
}

TEST_F(ProtectedSaving, IsRefusedUntilASaveThatWasCutShortIsFinishedOrTakenBack) {
  m_test.host.saves.onOperation = [this](const std::string& operation) {
    if (operation == "rename " + stringsFileOf("fr")) m_test.host.saves.killNow();
  };
  EXPECT_THROW(project().saveProject(), InMemorySaveDisk::Killed);
  m_test.host.saves.onOperation = nullptr;
  m_test.host.saves.goOn();
  EXPECT_FALSE(project().saveProject());
  EXPECT_EQ(refusal(), Kind::Unfinished);
  EXPECT_EQ(m_test.savedFile("fr"), "\"Open\" = \"Ouvrir\";");
}

TEST_F(ProtectedSaving, TellsObserversOfASaveThatWasRefusedToo) {
  std::vector<ProjectMoment> moments;
  project().observers().add([&](ProjectMoment moment) { moments.push_back(moment); });
  editElsewhere();
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  EXPECT_FALSE(project().saveProject());
  EXPECT_TRUE(project().saveLanguage(m_test.language("fr")));
  project().closeProject();
  m_test.open();
  using enum ProjectMoment;
  EXPECT_EQ(moments, (std::vector<ProjectMoment>{Saved, Saved, Closed, Closed, Opened}));
}

}  // namespace
}  // namespace glossmill
