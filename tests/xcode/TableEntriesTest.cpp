#include <gtest/gtest.h>

#include "xcode/TableEntries.h"

namespace glossmill {
namespace {

TEST(CommentInGap, IsTheLastOne) {
  EXPECT_EQ(commentInGap("/* head */\n\n/* near */ ", false), "near");
  EXPECT_EQ(commentInGap("\n// one\n// two\n", true), "two");
  EXPECT_EQ(commentInGap("/* over\n lines */", false), "over\n lines");
}

TEST(CommentInGap, IsNotThatOfTheEntryBefore) {
  EXPECT_EQ(commentInGap(" // behind\n", true), "");
  EXPECT_EQ(commentInGap(" /* behind\n */ ", true), "");
  EXPECT_EQ(commentInGap(" // behind\n/* own */", true), "own");
  EXPECT_EQ(commentInGap(" // first line\n", false), "first line");
}

TEST(CommentInGap, IsNoneWithoutAComment) {
  for (const char* gap : {"", "/", " \n "}) EXPECT_EQ(commentInGap(gap, false), "") << gap;
  EXPECT_EQ(commentInGap("/**/", false), "");
}

}  // namespace
}  // namespace glossmill
