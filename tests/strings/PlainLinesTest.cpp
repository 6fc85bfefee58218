#include <gtest/gtest.h>

#include <string>

#include "strings/PlainLines.h"

namespace glossmill {
namespace {

bool isPlain(std::string_view line) {
  return plainEntryAt(line, 0, std::nullopt).has_value();
}

TEST(PlainEntry, GivesKeyAndValueOfALine) {
  const std::string_view text = "\n\"Open\" = \"Auf\";\n\"";
  const auto entry = plainEntryAt(text, 1, std::nullopt);
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->key, "Open");
  EXPECT_EQ(entry->value, "Auf");
  EXPECT_EQ(entry->end, text.size() - 1);
  EXPECT_FALSE(entry->keyIsExpected);
}

TEST(PlainEntry, MayHaveAnyBlanksAroundTheEqualsSign) {
  EXPECT_TRUE(isPlain("\"a\"=\"b\";\n"));
  EXPECT_TRUE(isPlain("\"a\" \t=  \"b\";\n"));
  EXPECT_FALSE(isPlain("\"a\" \"b\";\n"));
  EXPECT_FALSE(isPlain("\"a\" == \"b\";\n"));
  EXPECT_FALSE(isPlain("\"a\" /**/ = \"b\";\n"));
}

TEST(PlainEntry, MayHaveAnEmptyKeyAndValue) {
  const auto entry = plainEntryAt("\"\" = \"\";\n", 0, std::nullopt);
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->key, "");
  EXPECT_EQ(entry->value, "");
}

TEST(PlainEntry, KnowsTheExpectedKey) {
  EXPECT_TRUE(plainEntryAt("\"ab\" = \"c\";\n", 0, "ab")->keyIsExpected);
  EXPECT_TRUE(plainEntryAt("\"\" = \"c\";\n", 0, "")->keyIsExpected);
  const auto longer = plainEntryAt("\"abc\" = \"c\";\n", 0, "ab");
  ASSERT_TRUE(longer);
  EXPECT_FALSE(longer->keyIsExpected);
  EXPECT_EQ(longer->key, "abc");
  const auto shorter = plainEntryAt("\"a\" = \"c\";\n", 0, "a longer key than there is text");
  ASSERT_TRUE(shorter);
  EXPECT_EQ(shorter->key, "a");
}

TEST(PlainEntry, EndsNoTextAtAQuoteBehindABackslash) {
  EXPECT_FALSE(isPlain("\"a\\\" = \"b\";\n"));
  EXPECT_FALSE(isPlain("\"a\" = \"b\\\";\n"));
  EXPECT_FALSE(plainEntryAt("\"a\\\" = \"b\";\n", 0, "a\\").has_value());
}

TEST(PlainEntry, EndsWithItsLine) {
  EXPECT_FALSE(isPlain("\"a\" = \"b\"\n"));
  EXPECT_FALSE(isPlain("\"a\" = \"b\"; \n"));
  EXPECT_FALSE(isPlain("\"a\" = \"b\"; // c\n"));
  EXPECT_FALSE(isPlain("\"a\n\" = \"b\";\n"));
  EXPECT_FALSE(isPlain("\"a\" = \"b\n\";\n"));
}

TEST(PlainEntry, IsThereOnlyWhenItsWholeLineIs) {
  const std::string line = "\"Open\" = \"Auf\";\n";
  EXPECT_TRUE(isPlain(line));
  for (std::size_t length = 1; length < line.size(); ++length) {
    EXPECT_FALSE(isPlain(line.substr(0, length))) << length;
    EXPECT_FALSE(plainEntryAt(line.substr(0, length), 0, "Open").has_value()) << length;
  }
}

TEST(PlainComment, EndsBehindStarAndSlash) {
  EXPECT_EQ(endOfPlainComment("/* a */b", 0), 7U);
  EXPECT_EQ(endOfPlainComment("b/**/", 1), 5U);
  EXPECT_EQ(endOfPlainComment("/* \"a\n* b */ */", 0), 12U);
}

TEST(PlainComment, GoesOnBehindAStarThatTakesTheNextWithIt) {
  EXPECT_EQ(endOfPlainComment("/* **/ */", 0), 9U);
  EXPECT_EQ(endOfPlainComment("/***/", 0), 0U);
  EXPECT_EQ(endOfPlainComment("/***/ */", 0), 8U);
  EXPECT_EQ(endOfPlainComment("/****/ */", 0), 6U);
  EXPECT_EQ(endOfPlainComment("/* ***/ */", 0), 7U);
}

TEST(PlainComment, IsNoneWithoutItsEnd) {
  EXPECT_EQ(endOfPlainComment("/* a *", 0), 0U);
  EXPECT_EQ(endOfPlainComment("/*/", 0), 0U);
  EXPECT_EQ(endOfPlainComment("/", 0), 0U);
  EXPECT_EQ(endOfPlainComment("// a */\n", 0), 0U);
}

}  // namespace
}  // namespace glossmill
