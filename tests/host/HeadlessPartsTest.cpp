#include <gtest/gtest.h>

#include <cstddef>

#include "host/HeadlessHost.h"

namespace glossmill {
namespace {

/// An owner of an interface file, which keeps no more of it than its address.
template <typename Controller>
class OwnerAddress {
 public:
  Controller& controller() { return reinterpret_cast<Controller&>(m_place); }

 private:
  std::max_align_t m_place{};
};

TEST(HeadlessSheets, AreUpFromBeginningToEnd) {
  HeadlessSheets sheets;
  HeadlessWindow window;
  EXPECT_EQ(sheets.current(), nullptr);
  sheets.beginSheet(window, [] {});
  EXPECT_TRUE(sheets.isUp(window));
  EXPECT_TRUE(window.isVisible);
  EXPECT_EQ(sheets.current(), &window);
  sheets.endSheet(window);
  EXPECT_FALSE(sheets.isUp(window));
  EXPECT_EQ(sheets.count(), 0U);
}

TEST(HeadlessSheets, TellOfTheirEndOnceEvenWhenTheHearerEndsThemAgain) {
  HeadlessSheets sheets;
  HeadlessWindow window;
  int ended = 0;
  sheets.beginSheet(window, [&] {
    ++ended;
    sheets.endSheet(window);
  });
  sheets.endSheet(window);
  sheets.endSheet(window);
  EXPECT_EQ(ended, 1);
}

TEST(HeadlessSheets, BegunTwiceAreUpOnceAndTellTheLatestHearer) {
  HeadlessSheets sheets;
  HeadlessWindow window;
  std::string ended;
  sheets.beginSheet(window, [&ended] { ended += "first "; });
  sheets.beginSheet(window, [&ended] { ended += "second "; });
  EXPECT_EQ(sheets.count(), 1U);
  sheets.endSheet(window);
  EXPECT_EQ(ended, "second ");
}

TEST(HeadlessSheets, TheHearerMayFreeTheSheet) {
  HeadlessSheets sheets;
  auto window = std::make_unique<HeadlessWindow>();
  sheets.beginSheet(*window, [&window] { window.reset(); });
  sheets.endSheet(*window);
  EXPECT_EQ(window, nullptr);
  EXPECT_EQ(sheets.count(), 0U);
}

TEST(HeadlessMenu, ChoosesByTitleAlsoWhenTheActionRebuildsTheMenu) {
  HeadlessMenu menu;
  std::string chosen;
  menu.addItem({"/one", 0, [&chosen] { chosen = "/one"; }, false});
  menu.addItem({"", 0, {}, true});
  menu.addItem({"Clear Menu", 4,
                [&] {
                  menu.removeAllItems();
                  chosen = "cleared";
                },
                false});
  EXPECT_TRUE(menu.choose("/one"));
  EXPECT_EQ(chosen, "/one");
  EXPECT_FALSE(menu.choose("/two"));
  EXPECT_FALSE(menu.choose(""));
  EXPECT_TRUE(menu.choose("Clear Menu"));
  EXPECT_EQ(chosen, "cleared");
  EXPECT_TRUE(menu.items().empty());
}

TEST(HeadlessPanels, AreCancelled) {
  HeadlessPanels panels;
  EXPECT_FALSE(panels.runOpenPanel({}).has_value());
  bool heard = false;
  panels.beginSavePanel({}, [&heard](std::optional<FileUrl> file) { heard = !file; });
  EXPECT_TRUE(heard);
  EXPECT_EQ(panels.runAlert({}), AlertAnswer::Default);
}

TEST(HeadlessPanels, GiveTheirOwnersAnswerToAnAlert) {
  HeadlessPanels panels;
  std::string message;
  panels.answerAlert = [&message](const AlertRequest& request) {
    message = request.message;
    return AlertAnswer::Other;
  };
  EXPECT_EQ(panels.runAlert({"Save?", "", "Save", "Delete", "Cancel"}), AlertAnswer::Other);
  EXPECT_EQ(message, "Save?");
}

TEST(HeadlessWindow, CommitsTheEditOnceWhenItGivesTheKeyboardUp) {
  HeadlessWindow window;
  int commits = 0;
  window.focusMainField();
  window.commitEdit = [&commits] { ++commits; };
  window.clearFirstResponder();
  window.clearFirstResponder();
  EXPECT_EQ(commits, 1);
  EXPECT_EQ(window.firstResponder, HeadlessWindow::FirstResponder::Nothing);
}

TEST(HeadlessInterfaceFiles, TellTheirObserverOfEachStepOfProgress) {
  HeadlessInterfaceFiles interfaces;
  OwnerAddress<ProjectWindowController> owner;
  std::string seen;
  interfaces.setProgressObserver([&seen](const HeadlessLongTimeSheet& sheet) {
    seen += sheet.title.stringValue + std::to_string(static_cast<int>(sheet.indicator.doubleValue)) + " ";
  });
  const auto sheet = interfaces.loadLongTimeSheet(owner.controller());
  sheet.outlets.longTimeSheetTitle->setStringValue("Job");
  sheet.outlets.longTimeIndicator->setDoubleValue(7);
  EXPECT_EQ(seen, "Job0 Job7 ");
  EXPECT_EQ(interfaces.longTimeSheet()->owner, &owner.controller());
}

TEST(HeadlessInterfaceFiles, TellTheirObserverOfTheWholeLog) {
  HeadlessInterfaceFiles interfaces;
  OwnerAddress<LogWindowController> owner;
  std::string seen;
  interfaces.setLogObserver([&seen](std::string_view text) { seen = text; });
  const auto log = interfaces.loadLogWindow(owner.controller());
  EXPECT_EQ(interfaces.logWindow()->textView.string(), "");
  const std::string text = "one\ntwo\n";
  log.outlets.textView->setString(text);
  EXPECT_EQ(seen, text);
  EXPECT_EQ(interfaces.logWindow()->textView.string(), text);
}

TEST(HeadlessInterfaceFiles, OnlyTheExportChooserHasACheckBox) {
  HeadlessInterfaceFiles interfaces;
  OwnerAddress<LanguageWindowController> exporting;
  OwnerAddress<LanguageWindowController> importing;
  const auto first = interfaces.loadLanguageWindow("ExportLanguageWindowController", exporting.controller());
  const auto second = interfaces.loadLanguageWindow("LanguageWindowController", importing.controller());
  EXPECT_NE(first.outlets.checkButton, nullptr);
  EXPECT_EQ(second.outlets.checkButton, nullptr);
  EXPECT_EQ(interfaces.languageWindow(exporting.controller())->name, "ExportLanguageWindowController");
  EXPECT_EQ(interfaces.languageWindow(importing.controller())->name, "LanguageWindowController");
}

TEST(HeadlessInterfaceFiles, KeepTheStateOfAWindowWhoseOwnerHasGone) {
  HeadlessInterfaceFiles interfaces;
  EXPECT_EQ(interfaces.projectWindow(), nullptr);
  {
    OwnerAddress<ProjectWindowController> owner;
    const auto window = interfaces.loadProjectWindow(owner.controller());
    window.outlets.window->setTitle("App");
  }
  EXPECT_EQ(interfaces.projectWindow()->window.title, "App");
}

TEST(HeadlessSystemLog, PassesItsLines) {
  HeadlessSystemLog log;
  log.write("nobody listens");
  std::string seen;
  log.onLine = [&seen](const Message& line) { line.appendTo(seen); };
  log.write({"Error open file: %@", {"a.m"}});
  EXPECT_EQ(seen, "Error open file: a.m");
}

TEST(HeadlessHost, HandsOutItsOwnParts) {
  HeadlessHost host(EmbeddedBundle::StringsTable{{"Ok", "Gut"}});
  const Host parts = host.parts();
  EXPECT_EQ(parts.bundle.localizedString("Ok"), "Gut");
  parts.application.terminate();
  EXPECT_TRUE(host.application.isTerminated);
  bool done = false;
  parts.threads.performInBackground([&] { parts.threads.performOnMainThreadAndWait([&done] { done = true; }); });
  host.runUntilIdle();
  EXPECT_TRUE(done);
}

}  // namespace
}  // namespace glossmill
