#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "app/Commands.h"
#include "dialogs/LanguageWindowController.h"
#include "dialogs/SelectLanguageWindowController.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

char mnemonicOf(std::string_view title) {
  const std::size_t ampersand = title.find('&');
  return ampersand + 1 < title.size() ? static_cast<char>(std::tolower(title[ampersand + 1])) : '\0';
}

TEST(Commands, AreFoundByTheirId) {
  std::set<CommandId> seen;
  for (const Command& each : commands()) {
    EXPECT_EQ(&command(each.id), &each);
    EXPECT_TRUE(seen.insert(each.id).second) << each.title;
  }
  EXPECT_EQ(seen.size(), static_cast<std::size_t>(CommandId::About) + 1);
}

TEST(Commands, CarryTheTagsThatEnableThem) {
  const std::pair<CommandId, int> expected[] = {{CommandId::Close, 2},
                                                {CommandId::Save, 3},
                                                {CommandId::ClearMenu, 4},
                                                {CommandId::Export, 5},
                                                {CommandId::Import, 6},
                                                {CommandId::AddLanguage, 7},
                                                {CommandId::BaseLanguage, 7},
                                                {CommandId::Open, 8},
                                                {CommandId::ProjectWindow, 9},
                                                {CommandId::LogWindow, 10},
                                                {CommandId::PreviousString, 11},
                                                {CommandId::NextString, 12},
                                                {CommandId::PreviousLanguage, 13},
                                                {CommandId::NextLanguage, 14},
                                                {CommandId::Undo, 16},
                                                {CommandId::Redo, 17},
                                                {CommandId::SaveAll, 18},
                                                {CommandId::GoToMessage, 20},
                                                {CommandId::SavedVersions, 21},
                                                {CommandId::UseClassicRules, 2},
                                                {CommandId::UseXcodeRules, 2},
                                                {CommandId::RemoveUnused, 22},
                                                {CommandId::PreviousUntranslated, 23},
                                                {CommandId::NextUntranslated, 23},
                                                {CommandId::Quit, 0}};
  for (const auto& [id, tag] : expected) EXPECT_EQ(command(id).tag, tag) << command(id).title;
}

TEST(Commands, HaveShortcutsOfTheirOwn) {
  std::set<std::string_view> seen;
  for (const Command& each : commands()) {
    for (const std::string_view shortcut : each.shortcuts) {
      EXPECT_TRUE(shortcut.empty() || seen.insert(shortcut).second) << shortcut;
    }
  }
  EXPECT_EQ(command(CommandId::NextString).shortcuts, (std::array<std::string_view, 2>{"Alt+Down", "Ctrl+Return"}));
}

TEST(Commands, HaveMnemonicsOfTheirOwnInEachMenu) {
  std::set<std::pair<MenuId, char>> seen;
  std::set<char> menus;
  for (const Command& each : commands()) {
    if (each.id == CommandId::ClearMenu) continue;
    EXPECT_NE(mnemonicOf(each.title), '\0') << each.title;
    EXPECT_TRUE(seen.insert({each.menu, mnemonicOf(each.title)}).second) << each.title;
  }
  for (const MenuId menu : glossmill::menus()) {
    EXPECT_TRUE(menus.insert(mnemonicOf(menuTitle(menu))).second) << menuTitle(menu);
  }
}

TEST(Commands, NameSubmenusAfterTheirEntriesForThem) {
  EXPECT_EQ(menuTitle(MenuId::Recent), command(CommandId::OpenRecent).title);
  EXPECT_EQ(menuTitle(MenuId::Rules), command(CommandId::ChooseRules).title);
}

TEST(Commands, OfTheToolBarAreCommandsOfTheMenusWithAnAction) {
  std::vector<CommandId> ids;
  for (const ToolBarItem& item : toolBarItems()) {
    ids.push_back(item.command);
    EXPECT_NE(command(item.command).action, nullptr) << item.title;
    EXPECT_FALSE(item.icon.empty());
    EXPECT_EQ(item.tag == 2, item.command == CommandId::Save) << item.title;
  }
  EXPECT_EQ(ids, (std::vector<CommandId>{CommandId::Open, CommandId::Save, CommandId::AddLanguage, CommandId::Export,
                                         CommandId::Import, CommandId::BaseLanguage}));
}

/// Two strings in two languages.
class CommandsOfAProject : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Add");
    m_test.addString("Bold");
    m_test.addLanguage("de");
    m_test.addLanguage("fr");
    m_test.application.openProjectWindow();
  }
  void run(CommandId id) {
    perform(m_test.application, command(id));
    m_test.host.runUntilIdle();
  }
  void openByCommand() {
    m_test.host.panels.willChoose(TestProject::kDirectory);
    run(CommandId::Open);
  }
  bool enabled(CommandId id) { return isEnabled(m_test.application, command(id)); }
  std::string chooser() { return m_test.host.interfaces.languageWindow(*m_test.host.sheets.current())->name; }

  TestProject m_test;
};

TEST_F(CommandsOfAProject, OpenSaveAndClose) {
  openByCommand();
  EXPECT_TRUE(m_test.project().opened());
  run(CommandId::Save);
  EXPECT_EQ(m_test.savedFile("de"), "\n");
  run(CommandId::Close);
  EXPECT_FALSE(m_test.project().opened());
}

TEST_F(CommandsOfAProject, Navigate) {
  openByCommand();
  run(CommandId::NextString);
  run(CommandId::NextLanguage);
  EXPECT_EQ(m_test.project().selectedString()->name(), "Bold");
  EXPECT_EQ(m_test.project().selectedLanguage()->iso639(), "fr");
  run(CommandId::PreviousString);
  run(CommandId::PreviousLanguage);
  EXPECT_EQ(m_test.project().selectedString()->name(), "Add");
  EXPECT_EQ(m_test.project().selectedLanguage()->iso639(), "de");
}

TEST_F(CommandsOfAProject, ShowTheDialogs) {
  openByCommand();
  run(CommandId::Export);
  EXPECT_EQ(chooser(), "ExportLanguageWindowController");
  m_test.host.sheets.endSheet(*m_test.host.sheets.current());
  const Window* importing = nullptr;
  for (const CommandId id : {CommandId::Import, CommandId::BaseLanguage}) {
    run(id);
    EXPECT_EQ(chooser(), "LanguageWindowController");
    EXPECT_NE(m_test.host.sheets.current(), importing);
    importing = m_test.host.sheets.current();
    m_test.host.sheets.endSheet(*m_test.host.sheets.current());
  }
  run(CommandId::AddLanguage);
  EXPECT_EQ(m_test.host.sheets.current(), &m_test.host.interfaces.selectLanguageWindow()->window);
}

TEST_F(CommandsOfAProject, ShowTheWindows) {
  m_test.window().window.isVisible = false;
  run(CommandId::ProjectWindow);
  EXPECT_TRUE(m_test.window().window.isVisible);
  run(CommandId::LogWindow);
  EXPECT_TRUE(m_test.host.interfaces.logWindow()->window.isVisible);
}

TEST_F(CommandsOfAProject, ClearTheRecentMenu) {
  openByCommand();
  EXPECT_TRUE(enabled(CommandId::ClearMenu));
  run(CommandId::ClearMenu);
  EXPECT_TRUE(m_test.application.recentArray().empty());
  EXPECT_FALSE(enabled(CommandId::ClearMenu));
}

TEST_F(CommandsOfAProject, Quit) {
  run(CommandId::Quit);
  EXPECT_TRUE(m_test.host.application.isTerminated);
}

TEST_F(CommandsOfAProject, AreEnabledByItsState) {
  for (const CommandId id : {CommandId::Close, CommandId::Save, CommandId::Export, CommandId::Import,
                             CommandId::AddLanguage, CommandId::BaseLanguage, CommandId::NextString}) {
    EXPECT_FALSE(enabled(id)) << command(id).title;
  }
  for (const CommandId id : {CommandId::Open, CommandId::Quit, CommandId::LogWindow, CommandId::Find}) {
    EXPECT_TRUE(enabled(id)) << command(id).title;
  }
  openByCommand();
  EXPECT_TRUE(enabled(CommandId::BaseLanguage));
  EXPECT_FALSE(enabled(CommandId::Save));
  EXPECT_FALSE(enabled(CommandId::PreviousString));
  m_test.type("Hinzufügen");
  EXPECT_TRUE(enabled(CommandId::Save));
}

TEST_F(CommandsOfAProject, DisableOnlySavingInTheToolBar) {
  openByCommand();
  for (const ToolBarItem& item : toolBarItems()) {
    EXPECT_EQ(isEnabled(m_test.application, item), item.command != CommandId::Save) << item.title;
  }
  m_test.type("Hinzufügen");
  for (const ToolBarItem& item : toolBarItems()) EXPECT_TRUE(isEnabled(m_test.application, item)) << item.title;
}

TEST_F(CommandsOfAProject, MeetAnObstacleInTheToolBarWhileNoneIsOpen) {
  const auto needsProject = [](CommandId id) { return id != CommandId::Open && id != CommandId::Save; };
  const auto obstacleOf = [this](const ToolBarItem& item) { return obstacle(m_test.application, item); };
  for (const ToolBarItem& item : toolBarItems()) {
    if (!isEnabled(m_test.application, item)) continue;
    EXPECT_EQ(obstacleOf(item), needsProject(item.command) ? kOpenAProjectFirst : "") << item.title;
  }
  openByCommand();
  m_test.type("Hinzufügen");
  for (const ToolBarItem& item : toolBarItems()) EXPECT_EQ(obstacleOf(item), "") << item.title;
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  run(CommandId::Close);
  EXPECT_EQ(obstacleOf(toolBarItems().back()), kOpenAProjectFirst);
}

TEST_F(CommandsOfAProject, TakeBackAndMakeAgainWhatWasTyped) {
  openByCommand();
  EXPECT_FALSE(isEnabled(m_test.application, command(CommandId::Undo)));
  m_test.type("Hinzufügen");
  EXPECT_FALSE(isEnabled(m_test.application, command(CommandId::Redo)));
  run(CommandId::Undo);
  EXPECT_EQ(m_test.translation(m_test.keys().front(), "de"), std::nullopt);
  EXPECT_FALSE(isEnabled(m_test.application, command(CommandId::Undo)));
  run(CommandId::Redo);
  EXPECT_EQ(m_test.translation(m_test.keys().front(), "de"), "Hinzufügen");
}

TEST_F(CommandsOfAProject, LeaveWhatTheFocusCarriesOutAlone) {
  openByCommand();
  for (const CommandId id : {CommandId::Cut, CommandId::Paste, CommandId::Find, CommandId::About}) {
    EXPECT_EQ(command(id).action, nullptr);
    run(id);
  }
  EXPECT_TRUE(m_test.project().opened());
  EXPECT_FALSE(m_test.project().changed());
}

TEST(CommandsWithoutAProjectWindow, DoNothing) {
  TestHost host;
  AppDelegate application(host.parts());
  for (const CommandId id : {CommandId::Open, CommandId::Save, CommandId::Export, CommandId::AddLanguage}) {
    perform(application, command(id));
  }
  for (const ToolBarItem& item : toolBarItems()) EXPECT_FALSE(isEnabled(application, item));
  EXPECT_EQ(host.sheets.count(), 0U);
}

}  // namespace
}  // namespace glossmill
