#include <gtest/gtest.h>

#include <string>

#include "app/AppDelegate.h"
#include "support/RecordingHost.h"

namespace glossmill {
namespace {

/// A bundle whose table of languages is this one, or cannot be read.
class OtherTable : public Bundle {
 public:
  explicit OtherTable(Result<std::string> table) : m_table(std::move(table)) {}
  std::string localizedString(std::string_view key) const override { return "<" + std::string(key) + ">"; }
  Result<std::string> resource(std::string_view name, std::string_view type) const override {
    EXPECT_EQ(name, "ISO-639-2");
    EXPECT_EQ(type, "csv");
    return m_table;
  }

 private:
  Result<std::string> m_table;
};

/// Opens the project window of a program with another table, and a project with two languages in it.
class IsoTableLoading : public testing::Test {
 protected:
  void openWith(const Result<std::string>& table) {
    bundle.emplace(table);
    application.emplace(Host{host.files, host.defaults, host.notifications, host.threads, host.panels, host.sheets,
                             host.interfaces, host.recentMenu, host.systemLog, *bundle, host.application, host.saves});
    application->openProjectWindow();
  }

  std::string logText() {
    const LogWindowController* log = application->logWindowController();
    return log ? std::string(log->logText()) : std::string();
  }

  TestHost host;
  std::optional<OtherTable> bundle;
  std::optional<AppDelegate> application;
};

TEST_F(IsoTableLoading, FillsTheTableWhenTheWindowLoads) {
  openWith(std::string("deu;de;German\r"));
  const IsoTable& table = application->projectWindowController()->iso639Dict();
  EXPECT_EQ(table.all().size(), 2U);
  EXPECT_EQ(table.nameOf("deu"), "German");
  EXPECT_EQ(logText(), "");
  EXPECT_EQ(host.systemLog.lines(), std::vector<std::string>());
}

TEST_F(IsoTableLoading, TellsOfATableThatCannotBeRead) {
  openWith(Error{"No such resource."});
  EXPECT_EQ(application->projectWindowController()->iso639Dict().all().size(), 0U);
  EXPECT_EQ(logText(), "<Error reading ISO file from bundle>\n");
  EXPECT_EQ(host.systemLog.lines(), std::vector<std::string>{"Error reading ISO file: No such resource."});
}

TEST_F(IsoTableLoading, TellsOfATableThatIsNotAscii) {
  openWith(std::string("nob;nb;Bokm\xC3\xA5l\r"));
  EXPECT_EQ(application->projectWindowController()->iso639Dict().all().size(), 0U);
  EXPECT_EQ(logText(), "<Error reading ISO file from bundle>\n");
  EXPECT_EQ(host.systemLog.lines().size(), 1U);
}

TEST(IsoTableLoadingOrder, WritesTheDiagnosticBeforeTheMessageAndObservesBeforeBoth) {
  RecordingHost recording;
  OtherTable bundle(Error{"No such resource."});
  RecordingServices services(recording.calls);
  ProjectWindowController project(recording.partsWith(bundle), services);
  project.showWindow();
  const Lines expected = {
      "interface files: load ProjectWindowController",
      "notifications: add an observer of GlossmillTranslationChanged",
      "system log: Error reading ISO file: No such resource.",
      "log: <Error reading ISO file from bundle>",
      "project window: show",
  };
  EXPECT_TRUE(sameLines(recording.calls.lines(), expected));
}

TEST_F(IsoTableLoading, LeavesLanguagesWithoutATableTheirDirectoryNames) {
  openWith(Error{"No such resource."});
  host.files.addFile("/P/A.xcodeproj/project.pbxproj", "");
  host.files.addDirectory("/P/German.lproj");
  host.panels.willChoose("/P");
  application->open();
  host.runUntilIdle();
  const auto& languages = *application->projectWindowController()->languagesList();
  ASSERT_EQ(languages.size(), 1U);
  EXPECT_EQ(languages[0]->iso639(), "German");
  EXPECT_EQ(languages[0]->description(), std::nullopt);
}

}  // namespace
}  // namespace glossmill
