#include <gtest/gtest.h>

#include "app/LogWindowController.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

class LogWindow : public testing::Test {
 protected:
  HeadlessLogWindow& window() { return *m_host.interfaces.logWindow(); }
  LogWindowController& controller() { return *m_application.logWindowController(); }

  TestHost m_host;
  AppDelegate m_application{m_host.parts()};
};

TEST_F(LogWindow, ShowsBothOfTwoMessagesInCallOrderEachOnItsLine) {
  m_application.logText("first");
  m_application.logText("second");
  EXPECT_EQ(window().textView.string(), "first\nsecond\n");
  EXPECT_EQ(controller().logText(), "first\nsecond\n");
}

TEST_F(LogWindow, TakesMessagesOfSeveralLinesAndPercentSignsAsTheyAre) {
  m_application.logText("ignored\n    %@ %ld");
  EXPECT_EQ(window().textView.string(), "ignored\n    %@ %ld\n");
  EXPECT_EQ(controller().messageCount(), 1U);
  EXPECT_EQ(controller().message(0), "ignored\n    %@ %ld");
}

TEST_F(LogWindow, TellsItsMessagesOneByOne) {
  for (const char* text : {"first", "", "third"}) m_application.logText(text);
  ASSERT_EQ(controller().messageCount(), 3U);
  EXPECT_EQ(controller().message(0), "first");
  EXPECT_EQ(controller().message(1), "");
  EXPECT_EQ(controller().message(2), "third");
}

TEST_F(LogWindow, ShowsAMessageOfABackgroundThreadBeforeTheCallReturns) {
  std::string shown;
  std::size_t length = 0;
  m_host.threads.performInBackground([&] {
    m_application.logText("from a job");
    m_host.threads.performOnMainThreadAndWait([&] {
      shown = window().textView.string();
      length = controller().messageCount();
    });
  });
  m_host.runUntilIdle();
  EXPECT_EQ(shown, "from a job\n");
  EXPECT_EQ(length, 1U);
}

TEST_F(LogWindow, KeepsTheOrderOfTheCallsOfAJob) {
  m_host.threads.performInBackground([this] {
    for (int number = 0; number < 1000; ++number) m_application.logText(std::to_string(number));
  });
  m_host.runUntilIdle();
  ASSERT_EQ(controller().messageCount(), 1000U);
  for (std::size_t number = 0; number < 1000; ++number) {
    ASSERT_EQ(controller().message(number), std::to_string(number));
  }
}

TEST_F(LogWindow, ComesForwardWithEachMessage) {
  m_application.logText("first");
  EXPECT_TRUE(window().window.isVisible);
  window().window.isVisible = false;
  m_application.logText("second");
  EXPECT_TRUE(window().window.isVisible);
  EXPECT_EQ(window().window.showCount, 2);
  EXPECT_FALSE(window().window.isKey);
}

TEST_F(LogWindow, KeepsItsTextWhileItIsClosed) {
  m_application.logText("first");
  window().window.isVisible = false;
  m_application.openLogWindow();
  EXPECT_TRUE(window().window.isVisible);
  EXPECT_EQ(window().textView.string(), "first\n");
}

TEST_F(LogWindow, IsNotOpenedByClearingBeforeAnyMessage) {
  m_application.clearLog();
  EXPECT_EQ(m_application.logWindowController(), nullptr);
  EXPECT_EQ(m_host.interfaces.logWindow(), nullptr);
}

TEST_F(LogWindow, IsEmptyAfterClearingAndDoesNotComeForward) {
  m_application.logText("first");
  window().window.isVisible = false;
  m_application.clearLog();
  EXPECT_EQ(window().textView.string(), "");
  EXPECT_EQ(controller().messageCount(), 0U);
  EXPECT_FALSE(window().window.isVisible);
  m_application.logText("second");
  EXPECT_EQ(window().textView.string(), "second\n");
  EXPECT_EQ(controller().message(0), "second");
}

TEST_F(LogWindow, CanBeClearedFromABackgroundThread) {
  m_application.logText("first");
  std::string seen = "nothing yet";
  m_host.threads.performInBackground([&] {
    m_application.clearLog();
    m_host.threads.performOnMainThreadAndWait([&] { seen = controller().logText(); });
  });
  m_host.runUntilIdle();
  EXPECT_EQ(seen, "");
}

TEST_F(LogWindow, StartsEmptyWhenItIsOpenedFromTheMenu) {
  m_application.openLogWindow();
  EXPECT_TRUE(window().window.isVisible);
  EXPECT_EQ(controller().logText(), "");
  EXPECT_EQ(controller().messageCount(), 0U);
}

TEST_F(LogWindow, StartsEmptyWhateverWasLoggedBeforeItWasLoaded) {
  LogWindowController log(m_host.parts());
  log.logText("too early");
  EXPECT_EQ(log.logText(), "too early\n");
  log.showWindow();
  EXPECT_EQ(log.logText(), "");
  EXPECT_EQ(log.messageCount(), 0U);
}

TEST_F(LogWindow, PassesEachMessageOnAlsoWhenNothingIsKept) {
  AppDelegate application(m_host.parts(), KeptLog::Nothing);
  std::vector<std::string> passed;
  application.onLogText = [&passed](const Message& message) { passed.push_back(message.text()); };
  application.logText("first");
  application.logText({"%@", {"second"}});
  EXPECT_EQ(passed, (std::vector<std::string>{"first", "second"}));
}

TEST_F(LogWindow, KeepsNothingWhereItIsToldTo) {
  AppDelegate application(m_host.parts(), KeptLog::Nothing);
  application.logText("first");
  EXPECT_EQ(application.logWindowController()->logText(), "");
  EXPECT_EQ(application.logWindowController()->messageCount(), 0U);
  EXPECT_EQ(window().window.showCount, 1);
}

TEST(LogOfAProject, IsEmptiedWhenAProjectIsOpenedAgain) {
  TestProject test;
  test.addLanguage("de");
  test.open();
  const std::string first(test.application.logWindowController()->logText());
  EXPECT_EQ(first, "Found Localizable.strings for Language: German\n");
  test.open();
  EXPECT_EQ(test.application.logWindowController()->logText(), first);
}

}  // namespace
}  // namespace glossmill
