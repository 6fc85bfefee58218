#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "text/MessageList.h"

namespace glossmill {
namespace {

TEST(Message, IsShownWithItsArgumentsClippedWhereThatIsWanted) {
  const std::string longText(100, 'x');
  EXPECT_EQ(Message("%@: %ld", {longText, std::int64_t{12345}}).shownText(), longText + ": 12345");
  EXPECT_EQ(Message("%@: %@", {longText, "12345"}).clippedTo(4).shownText(), "xxxx: 1234");
  EXPECT_EQ(Message("%@: %@", {longText, "12345"}).clippedTo(4).text(), longText + ": 12345");
  EXPECT_EQ(Message("a text").clippedTo(2).shownText(), "a text");
}

TEST(Message, OfATextAloneIsThatText) {
  EXPECT_EQ(Message("50 %@ of %% %ld").text(), "50 %@ of %% %ld");
  EXPECT_EQ(Message(std::string("a")).text(), "a");
}

TEST(Message, OfAFormatHasItsPlacesFilled) {
  EXPECT_EQ(Message("%@: %ld", {"de", std::int64_t{3}}).text(), "de: 3");
  EXPECT_EQ(Message("100%%", {}).text(), "100%");
}

TEST(Message, IsAddedBehindWhatATextHolds) {
  std::string text = "system log: ";
  Message("Lines: %ld", {std::int64_t{12}}).appendTo(text);
  EXPECT_EQ(text, "system log: Lines: 12");
}

TEST(MessageList, HoldsEachMessageOnALineOfItsOwn) {
  MessageList list;
  list.add("first");
  list.add({"%@\n    %@", {"second", "its rest"}});
  list.add("");
  EXPECT_EQ(list.text(), "first\nsecond\n    its rest\n\n");
}

TEST(MessageList, TellsItsMessagesOneByOne) {
  MessageList list;
  for (const char* text : {"first", "two\nlines", "", "last"}) list.add(text);
  ASSERT_EQ(list.count(), 4U);
  EXPECT_EQ(list.message(0), "first");
  EXPECT_EQ(list.message(1), "two\nlines");
  EXPECT_EQ(list.message(2), "");
  EXPECT_EQ(list.message(3), "last");
}

TEST(MessageList, IsEmptyAfterClearing) {
  MessageList list;
  list.add("first");
  list.clear();
  EXPECT_EQ(list.text(), "");
  EXPECT_EQ(list.count(), 0U);
  list.add("second");
  EXPECT_EQ(list.message(0), "second");
}

}  // namespace
}  // namespace glossmill
