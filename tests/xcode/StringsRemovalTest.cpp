#include <gtest/gtest.h>

#include "xcode/StringsEdits.h"

namespace glossmill {
namespace {

/// The text without the entries of these keys.
std::string without(const std::string& text, const std::vector<std::string>& keys) {
  std::vector<StringsEdit> edits;
  for (const std::string& key : keys) edits.push_back({key, std::nullopt, {}});
  const Result<std::string> result = editedStrings(StringsDocument(text), edits, nullptr);
  return result ? result.value() : "error: " + result.error().sentence;
}

TEST(StringsRemoval, AnEntryGoesWithItsLine) {
  EXPECT_EQ(without("a = 1;\n  b = 2; \nc = 3;\n", {"b"}), "a = 1;\nc = 3;\n");
  EXPECT_EQ(without("a = 1;\r\nb = 2;\r\nc = 3;\r\n", {"b"}), "a = 1;\r\nc = 3;\r\n");
  EXPECT_EQ(without("a = 1;\rb = 2;\rc = 3;\r", {"c"}), "a = 1;\rb = 2;\r");
  EXPECT_EQ(without("a\n=\n1\n;\nb = 2;\n", {"a"}), "b = 2;\n");
}

TEST(StringsRemoval, EveryRepetitionGoes) {
  EXPECT_EQ(without("a = 1;\nb = 2;\n\"a\" = 3;\n\"\\141\" = 4;\n", {"a"}), "b = 2;\n");
}

TEST(StringsRemoval, TheNearestCommentGoesAndThoseThatTouchIt) {
  EXPECT_EQ(without("a = 1;\n/* b */\nb = 2;\n", {"b"}), "a = 1;\n");
  EXPECT_EQ(without("a = 1;\n// b\n// c\n/* d */ /* e */\nb = 2;\n", {"b"}), "a = 1;\n");
  EXPECT_EQ(without("a = 1;\n/* c */\n\n/* b */\nb = 2;\n", {"b"}), "a = 1;\n/* c */\n");
  EXPECT_EQ(without("a = 1;\n/* b */\n\nb = 2;\nc = 3;\n", {"b"}), "a = 1;\nc = 3;\n");
  EXPECT_EQ(without("/* b */ b = 2;\nc = 3;\n", {"b"}), "c = 3;\n");
}

TEST(StringsRemoval, ACommentOnTheLineOfAnotherEntryStays) {
  EXPECT_EQ(without("a = 1; // a\nb = 2;\n", {"b"}), "a = 1; // a\n");
  EXPECT_EQ(without("a = 1; // a\n// b\nb = 2;\n", {"b"}), "a = 1; // a\n");
  EXPECT_EQ(without("a = 1; /* a\n and more */\nb = 2;\n", {"b"}), "a = 1; /* a\n and more */\n");
  EXPECT_EQ(without("a = 1; /* c */ b = 2;\n", {"b"}), "a = 1; /* c */\n");
  EXPECT_EQ(without("/* c */ a = 1; b = 2;\n", {"a"}), "/* c */ b = 2;\n");
  EXPECT_EQ(without("a = 1; b = 2; // c\n", {"b"}), "a = 1; // c\n");
  EXPECT_EQ(without("a = 1; b = 2; d = 3; // c\nf = 4;\n", {"b", "d", "f"}), "a = 1; // c\n");
}

TEST(StringsRemoval, ACommentBehindTheEntryOnItsLineGoes) {
  EXPECT_EQ(without("a = 1; // a\nb = 2;\n", {"a"}), "b = 2;\n");
  EXPECT_EQ(without("a = 1; /* a */ // a\n// b\nb = 2; // b\n", {"a"}), "// b\nb = 2; // b\n");
  EXPECT_EQ(without("a = 1; // a\nb = 2; // b\nc = 3;\n", {"a", "b"}), "c = 3;\n");
}

TEST(StringsRemoval, TheHeaderStays) {
  EXPECT_EQ(without("/* App */\n\na = 1;\nb = 2;\n", {"a"}), "/* App */\n\nb = 2;\n");
  EXPECT_EQ(without("//\n// App\n//\n\n/* a */\na = 1;\n\n/* b */\nb = 2;\n", {"a"}),
            "//\n// App\n//\n\n/* b */\nb = 2;\n");
  EXPECT_EQ(without("/* App */\n\na = 1;\n", {"a"}), "/* App */\n");
  EXPECT_EQ(without("/* a */\na = 1;\n\n/* b */\n\nb = 2;\n", {"a", "b"}), "");
}

TEST(StringsRemoval, OneBlankLineGoesWhereTwoWouldMeet) {
  EXPECT_EQ(without("a = 1;\n\nb = 2;\n\nc = 3;\n", {"b"}), "a = 1;\n\nc = 3;\n");
  EXPECT_EQ(without("a = 1;\n\nb = 2;\n\nc = 3;\n", {"a"}), "b = 2;\n\nc = 3;\n");
  EXPECT_EQ(without("a = 1;\n\nb = 2;\n\nc = 3;\n", {"c"}), "a = 1;\n\nb = 2;\n");
  EXPECT_EQ(without("a = 1;\n\nb = 2;\n\nc = 3;\n", {"b", "c"}), "a = 1;\n");
  EXPECT_EQ(without("a = 1;\n\nb = 2;\n\nc = 3;\n\n", {"a", "b"}), "c = 3;\n\n");
  EXPECT_EQ(without("a = 1;\nb = 2;\n\nc = 3;", {"b", "c"}), "a = 1;");
  EXPECT_EQ(without("\na = 1;\n\nb = 2;\n", {"a"}), "\nb = 2;\n");
  EXPECT_EQ(without("{\n\ta = 1;\n\n\tb = 2;\n}\n", {"b"}), "{\n\ta = 1;\n}\n");
}

TEST(StringsRemoval, GroupsOfLinesStayApart) {
  EXPECT_EQ(without("a = 1;\nb = 2;\n\nc = 3;\nd = 4;\n", {"b"}), "a = 1;\n\nc = 3;\nd = 4;\n");
  EXPECT_EQ(without("a = 1;\nb = 2;\n\nc = 3;\nd = 4;\n", {"c"}), "a = 1;\nb = 2;\n\nd = 4;\n");
  EXPECT_EQ(without("a = 1;\nb = 2;\n\nc = 3;\nd = 4;\n", {"c", "d"}), "a = 1;\nb = 2;\n");
}

TEST(StringsRemoval, OfEntriesOnOneLineTheOthersStay) {
  EXPECT_EQ(without("a = 1; b = 2; c = 3;\n", {"a"}), "b = 2; c = 3;\n");
  EXPECT_EQ(without("a = 1; b = 2; c = 3;\n", {"b"}), "a = 1; c = 3;\n");
  EXPECT_EQ(without("  a = 1; b = 2; c = 3;\n", {"c"}), "  a = 1; b = 2;\n");
  EXPECT_EQ(without("  a = 1; b = 2; c = 3;\n", {"a", "b"}), "  c = 3;\n");
  EXPECT_EQ(without("  a = 1; b = 2; c = 3;\n", {"a", "b", "c"}), "");
  EXPECT_EQ(without("{ a = 1; b = 2; }", {"a"}), "{ b = 2; }");
  EXPECT_EQ(without("{ a = 1; b = 2; }", {"a", "b"}), "{}");
}

TEST(StringsRemoval, AMissingFinalLineEndStaysMissing) {
  EXPECT_EQ(without("a = 1;\nb = 2;", {"b"}), "a = 1;");
  EXPECT_EQ(without("a = 1;\n\nb = 2;", {"b"}), "a = 1;");
  EXPECT_EQ(without("a = 1;\nb = 2", {"a"}), "b = 2");
  EXPECT_EQ(without("a = 1", {"a"}), "");
}

TEST(StringsRemoval, XmlEntriesGoInTheSameWay) {
  const std::string head = "<plist>\n<dict>\n";
  const std::string tail = "</dict>\n</plist>\n";
  const std::string a = "\t<key>a</key>\n\t<string>1</string>\n";
  const std::string b = "\t<!-- b -->\n\t<key>b</key>\n\t<string/>\n";
  EXPECT_EQ(without(head + a + b + tail, {"b"}), head + a + tail);
  EXPECT_EQ(without(head + a + b + tail, {"a"}), head + b + tail);
  EXPECT_EQ(without(head + a + b + tail, {"a", "b"}), head + tail);
}

TEST(StringsRemoval, MarksInFrontStay) {
  EXPECT_EQ(without("\uFEFF\uFEFFa = 1;\nb = 2;\n", {"a"}), "\uFEFF\uFEFFb = 2;\n");
}

}  // namespace
}  // namespace glossmill
