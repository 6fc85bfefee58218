#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

using Paths = std::vector<std::string>;

class RecentProjects : public testing::Test {
 protected:
  Paths menuTitles() {
    Paths titles;
    for (const MenuItem& item : m_host.recentMenu.items()) titles.push_back(item.isSeparator ? "----" : item.title);
    return titles;
  }
  Paths stored() { return m_host.defaults.stringArrayForKey("RecentUrls").value_or(Paths{"nothing stored"}); }
  void launch(const Paths& recent) {
    m_host.defaults.setStringArray("RecentUrls", recent);
    m_host.panels.willCancelOpenPanel();
    m_application.applicationDidFinishLaunching();
  }

  TestHost m_host;
  AppDelegate m_application{m_host.parts()};
};

TEST_F(RecentProjects, AreNoneButADisabledClearMenuAtFirst) {
  m_application.loadRecent();
  EXPECT_EQ(menuTitles(), (Paths{"Clear Menu"}));
  EXPECT_EQ(m_host.recentMenu.items().back().tag, 4);
  EXPECT_FALSE(m_application.validateMenuItem(4));
}

TEST_F(RecentProjects, ShowTheStoredListThenASeparatorThenClearMenu) {
  m_host.defaults.setStringArray("RecentUrls", {"/b", "/a"});
  m_application.loadRecent();
  EXPECT_EQ(menuTitles(), (Paths{"/b", "/a", "----", "Clear Menu"}));
  EXPECT_TRUE(m_application.validateMenuItem(4));
}

TEST_F(RecentProjects, AreTheFiveMostRecentNewestFirst) {
  for (const char* path : {"/1", "/2", "/3", "/4", "/5", "/6"}) m_application.saveRecent(path);
  EXPECT_EQ(m_application.recentArray(), (Paths{"/6", "/5", "/4", "/3", "/2"}));
  EXPECT_EQ(stored(), m_application.recentArray());
  EXPECT_EQ(menuTitles(), (Paths{"/6", "/5", "/4", "/3", "/2", "----", "Clear Menu"}));
}

TEST_F(RecentProjects, MoveAKnownOneToTheTopWithoutChangingTheCount) {
  for (const char* path : {"/1", "/2", "/3", "/4", "/5"}) m_application.saveRecent(path);
  m_application.saveRecent("/3");
  EXPECT_EQ(m_application.recentArray(), (Paths{"/3", "/5", "/4", "/2", "/1"}));
  m_application.saveRecent("/3");
  EXPECT_EQ(m_application.recentArray(), (Paths{"/3", "/5", "/4", "/2", "/1"}));
}

TEST_F(RecentProjects, KeepGrowingWhereMoreThanFiveWereStored) {
  launch({"/1", "/2", "/3", "/4", "/5", "/6"});
  m_application.saveRecent("/7");
  EXPECT_EQ(m_application.recentArray(), (Paths{"/7", "/1", "/2", "/3", "/4", "/5", "/6"}));
  m_application.saveRecent("/8");
  EXPECT_EQ(stored().size(), 8U);
}

TEST_F(RecentProjects, MoveTheFirstOfTwoEqualEntries) {
  launch({"/1", "/2", "/3", "/2"});
  m_application.saveRecent("/2");
  EXPECT_EQ(m_application.recentArray(), (Paths{"/2", "/1", "/3", "/2"}));
}

TEST_F(RecentProjects, AreWrittenToDiskAtOnce) {
  const int before = m_host.defaults.synchronizeCount();
  m_application.saveRecent("/1");
  EXPECT_EQ(m_host.defaults.synchronizeCount(), before + 1);
  m_application.clearRecent();
  EXPECT_EQ(m_host.defaults.synchronizeCount(), before + 2);
}

TEST_F(RecentProjects, AreClearedFromMenuAndSettings) {
  launch({"/1", "/2"});
  EXPECT_TRUE(m_host.recentMenu.choose("Clear Menu"));
  EXPECT_TRUE(m_application.recentArray().empty());
  EXPECT_EQ(stored(), Paths());
  EXPECT_EQ(menuTitles(), (Paths{"Clear Menu"}));
}

TEST_F(RecentProjects, OpenThePanelAtTheChosenDirectory) {
  launch({"/x/App", "/x/Other%20App"});
  m_host.panels.willCancelOpenPanel();
  EXPECT_TRUE(m_host.recentMenu.choose("/x/App"));
  ASSERT_EQ(m_host.panels.openPanels.size(), 2U);
  EXPECT_EQ(m_host.panels.openPanels.back().directory, FileUrl("/x/App"));
}

TEST_F(RecentProjects, OpenThePanelAnywhereForAPathWithABlank) {
  launch({"/x/My App"});
  EXPECT_TRUE(m_host.panels.openPanels.front().directory.empty());
  m_host.panels.willCancelOpenPanel();
  EXPECT_TRUE(m_host.recentMenu.choose("/x/My App"));
  ASSERT_EQ(m_host.panels.openPanels.size(), 2U);
  EXPECT_TRUE(m_host.panels.openPanels.back().directory.empty());
}

TEST_F(RecentProjects, GiveTheirItemsNoTag) {
  launch({"/x/App"});
  EXPECT_EQ(m_host.recentMenu.items().front().tag, 0);
  EXPECT_TRUE(m_application.validateMenuItem(0));
}

TEST(RecentProjectsAfterScans, HoldTheFiveProjectsOpenedLast) {
  TestProject test;
  for (const char* path : {"/p/1", "/p/2", "/p/3", "/p/4", "/p/5", "/p/6"}) test.host.files.addDirectory(path);
  test.application.openProjectWindow();
  for (const char* path : {"/p/1", "/p/2", "/p/3", "/p/4", "/p/5", "/p/6", "/p/4"}) {
    test.host.panels.willChoose(path);
    test.application.open();
    test.host.runUntilIdle();
  }
  EXPECT_EQ(test.application.recentArray(), (Paths{"/p/4", "/p/6", "/p/5", "/p/3", "/p/2"}));
}

TEST(RecentProjectsAfterScans, StayAsTheyWereWhenTheScanIsCancelled) {
  TestProject test;
  test.onProgress = [&test](const HeadlessLongTimeSheet& sheet) {
    if (sheet.indicator.isAnimated) test.project().longTimeCanceled();
  };
  test.host.panels.willChoose(TestProject::kDirectory);
  test.application.applicationDidFinishLaunching();
  test.host.runUntilIdle();
  EXPECT_FALSE(test.project().opened());
  EXPECT_TRUE(test.application.recentArray().empty());
}

TEST(RecentProjectsTexts, AreInTheLanguageOfTheUser) {
  TestHost host(EmbeddedBundle::StringsTable{{"Clear Menu", "Menü leeren"}});
  AppDelegate application(host.parts());
  application.loadRecent();
  EXPECT_EQ(host.recentMenu.items().back().title, "Menü leeren");
}

}  // namespace
}  // namespace glossmill
