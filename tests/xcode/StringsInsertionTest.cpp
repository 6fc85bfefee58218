#include <gtest/gtest.h>

#include "xcode/StringsEdits.h"

namespace glossmill {
namespace {

/// The text with new entries, all of the value "x" and the comment "c". `development` is empty for that file itself.
std::string with(const std::string& text, const std::vector<std::string>& keys, const std::string& development = "") {
  std::vector<StringsEdit> edits;
  for (const std::string& key : keys) edits.push_back({key, "x", "c"});
  const StringsDocument model(development);
  const StringsDocument* order = development.empty() ? nullptr : &model;
  const Result<std::string> result = editedStrings(StringsDocument(text), edits, order);
  return result ? result.value() : "error: " + result.error().sentence;
}

TEST(StringsInsertion, ANewEntryGoesBehindItsPredecessorInTheDevelopmentFile) {
  const std::string development = "z = 1;\nn = 2;\ny = 3;\nm = 4;\na = 5;\n";
  EXPECT_EQ(with("z = 1;\ny = 2;\na = 3;\n", {"n"}, development), "z = 1;\nn = \"x\";\ny = 2;\na = 3;\n");
  EXPECT_EQ(with("z = 1;\ny = 2;\na = 3;\n", {"m", "n"}, development),
            "z = 1;\nn = \"x\";\ny = 2;\nm = \"x\";\na = 3;\n");
  EXPECT_EQ(with("z = 1;\n", {"a", "m", "n"}, development), "z = 1;\nn = \"x\";\nm = \"x\";\na = \"x\";\n");
}

TEST(StringsInsertion, WhatHasNoPredecessorGoesInFrontOfWhatFollows) {
  EXPECT_EQ(with("/* H */\n\nb = 1;\nc = 2;\n", {"a"}, "a;\nb;\nc;\n"), "/* H */\n\na = \"x\";\nb = 1;\nc = 2;\n");
  EXPECT_EQ(with("/* b */\nb = 1;\n\n/* c */\nc = 2;\n", {"z", "a"}, "z;\na;\nb;\nc;\n"),
            "/* c */\nz = \"x\";\n\n/* c */\na = \"x\";\n\n/* b */\nb = 1;\n\n/* c */\nc = 2;\n");
}

TEST(StringsInsertion, WhatTheDevelopmentFileLacksGoesInOrderWhereThereIsOne) {
  EXPECT_EQ(with("a = 1;\nc = 2;\ne = 3;\n", {"d", "f", "B", "\"A"}),
            "\"\\\"A\" = \"x\";\na = 1;\nB = \"x\";\nc = 2;\nd = \"x\";\ne = 3;\nf = \"x\";\n");
  EXPECT_EQ(with("B = 1;\na = 2;\n", {"C"}), "B = 1;\nC = \"x\";\na = 2;\n");
  EXPECT_EQ(with("c = 1;\na = 2;\nb = 3;\n", {"z", "aa"}), "c = 1;\na = 2;\nb = 3;\nz = \"x\";\naa = \"x\";\n");
  EXPECT_EQ(with("a = 1;\nc = 2;\n", {"b"}, "c = 1;\na = 2;\n"), "a = 1;\nb = \"x\";\nc = 2;\n");
}

TEST(StringsInsertion, TheStyleIsThatOfTheEntriesBeside) {
  EXPECT_EQ(with("\t\"a\"=\"1\" ;\n\t\"c\"=\"2\" ;\n", {"b"}), "\t\"a\"=\"1\" ;\n\t\"b\"=\"x\" ;\n\t\"c\"=\"2\" ;\n");
  EXPECT_EQ(with("'a' = '1';\r\n'c' = '2';\r\n", {"b"}), "'a' = '1';\r\n'b' = 'x';\r\n'c' = '2';\r\n");
  EXPECT_EQ(with("a = 1;\rc = 2;\r", {"b b"}), "a = 1;\r\"b b\" = \"x\";\rc = 2;\r");
  EXPECT_EQ(with("\"a\";\n\"c\";\n", {"b"}), "\"a\";\n\"b\" = \"x\";\n\"c\";\n");
}

TEST(StringsInsertion, CommentsAndBlankLinesAreThoseOfMostNeighbours) {
  const std::string a = "/* A */\n\"a\" = \"1\";\n";
  const std::string c = "/* C */\n\"c\" = \"2\";\n";
  const std::string b = "/* c */\n\"b\" = \"x\";\n";
  EXPECT_EQ(with("\n" + a + "\n" + c + "\n", {"b"}), "\n" + a + "\n" + b + "\n" + c + "\n");
  EXPECT_EQ(with(a + c, {"b"}), a + b + c);
  EXPECT_EQ(with(a, {"b"}), a + "\n" + b);
  EXPECT_EQ(with("// A\na = 1;\n// C\nc = 2;\n", {"b"}), "// A\na = 1;\n// c\nb = \"x\";\n// C\nc = 2;\n");
  EXPECT_EQ(with("/*A*/ a = 1;\n/*C*/ c = 2;\n", {"b"}), "/*A*/ a = 1;\n/*c*/ b = \"x\";\n/*C*/ c = 2;\n");
  EXPECT_EQ(with("/* Group */\na = 1;\nc = 2;\n", {"b"}), "/* Group */\na = 1;\nb = \"x\";\nc = 2;\n");
  EXPECT_EQ(with("a = 1;\nb = 1;\n\nd = 1;\ne = 1;\n", {"c"}), "a = 1;\nb = 1;\nc = \"x\";\n\nd = 1;\ne = 1;\n");
}

TEST(StringsInsertion, CommentsAreWrittenSoThatTheyEndWhereTheyShould) {
  const auto withComment = [](const std::string& text, const std::string& comment) {
    return editedStrings(StringsDocument(text), {{"b", "x", comment}}, nullptr).value();
  };
  EXPECT_EQ(withComment("/* A */\na = 1;\n", ""),
            "/* A */\na = 1;\n\n/* No comment provided by engineer. */\nb = \"x\";\n");
  EXPECT_EQ(withComment("/* A */\na = 1;\n", "1 */ 2\r\n3"), "/* A */\na = 1;\n\n/* 1 * / 2\n3 */\nb = \"x\";\n");
  EXPECT_EQ(withComment(" // A\n a = 1;\n", "1\n2\u20283"), " // A\n a = 1;\n\n // 1\n // 2\n // 3\n b = \"x\";\n");
  EXPECT_EQ(withComment("a = 1;\n", "c"), "a = 1;\nb = \"x\";\n");
}

TEST(StringsInsertion, AMissingSemicolonIsAdded) {
  EXPECT_EQ(with("a = 1;\nb = 2", {"c"}), "a = 1;\nb = 2;\nc = \"x\";");
  EXPECT_EQ(with("a = 1;\nb = 2 // B\n", {"c", "d"}), "a = 1;\nb = 2; // B\nc = \"x\";\nd = \"x\";\n");
  EXPECT_EQ(with("a = 1;\nc = 2", {"b"}), "a = 1;\nb = \"x\";\nc = 2");
}

TEST(StringsInsertion, WhatStandsBehindAnEntryOnItsLineStaysThere) {
  EXPECT_EQ(with("a = 1; // A  \nc = 2;\n", {"b"}), "a = 1; // A  \nb = \"x\";\nc = 2;\n");
  EXPECT_EQ(with("a = 1; /* A\n */  \nc = 2;\n", {"b"}), "a = 1; /* A\n */  \nb = \"x\";\nc = 2;\n");
}

TEST(StringsInsertion, EntriesOnOneLineGetANeighbour) {
  EXPECT_EQ(with("a = 1; c = 2;\n", {"b"}), "a = 1; b = \"x\"; c = 2;\n");
  EXPECT_EQ(with("a = 1; c = 2;\n", {"d"}), "a = 1; c = 2; d = \"x\";\n");
  EXPECT_EQ(with("{ b = 1 }", {"a", "c"}), "{ a = \"x\"; b = 1; c = \"x\"; }");
}

TEST(StringsInsertion, OuterBracesStayOutside) {
  EXPECT_EQ(with("{\n  a = 1;\n}\n", {"b"}), "{\n  a = 1;\n  b = \"x\";\n}\n");
  EXPECT_EQ(with("{\n  b = 1;\n}\n", {"a"}), "{\n  a = \"x\";\n  b = 1;\n}\n");
}

TEST(StringsInsertion, AFileWithoutEntriesGetsThem) {
  EXPECT_EQ(with("", {"b", "a"}), "\"b\" = \"x\";\n\"a\" = \"x\";\n");
  EXPECT_EQ(with("\uFEFF\uFEFF", {"a"}), "\uFEFF\uFEFF\"a\" = \"x\";\n");
  EXPECT_EQ(with("/* H */\n", {"a"}), "/* H */\n\n\"a\" = \"x\";\n");
  EXPECT_EQ(with("// H", {"a"}), "// H\n\n\"a\" = \"x\";");
  EXPECT_EQ(with("{}", {"a"}), "{\n\"a\" = \"x\";\n}");
  EXPECT_EQ(with("{\n}\n", {"a"}), "{\n\"a\" = \"x\";\n}\n");
}

TEST(StringsInsertion, AFileWithoutEntriesTakesOrderAndStyleFromTheDevelopmentFile) {
  EXPECT_EQ(with("", {"a", "b"}, "/* B */\n\"b\" = \"1\";\n\n/* A */\n\"a\" = \"2\";\n"),
            "/* c */\n\"b\" = \"x\";\n\n/* c */\n\"a\" = \"x\";\n");
}

TEST(StringsInsertion, ANewFileTakesEncodingAndLineEndsFromTheDevelopmentFile) {
  using namespace std::string_literals;
  const StringsDocument development(
      "\xFF\xFE"
      "a\0;\0\r\0\n\0b\0;\0\r\0\n\0"s);
  const StringsDocument file = StringsDocument::emptyLike(development);
  EXPECT_EQ(editedStrings(file, {{"b", "", {}}, {"a", "", {}}}, &development).value(),
            "\xFF\xFE"
            "a\0 \0=\0 \0\"\0\"\0;\0\r\0\n\0"
            "b\0 \0=\0 \0\"\0\"\0;\0\r\0\n\0"s);
}

TEST(StringsInsertion, XmlGetsEntriesInTheSameWay) {
  const std::string head = "<plist>\n<dict>\n";
  const std::string tail = "</dict>\n</plist>\n";
  const std::string a = "\t<key>a</key>\n\t<string>1</string>\n";
  const std::string b = "\t<key>b</key>\n\t<string>x</string>\n";
  const std::string c = "\t<key>c</key>\n\t<string>2</string>\n";
  EXPECT_EQ(with(head + a + c + tail, {"b"}), head + a + b + c + tail);
  EXPECT_EQ(with(head + c + tail, {"b"}), head + b + c + tail);
  EXPECT_EQ(with(head + tail, {"b"}), head + b + tail);
  EXPECT_EQ(with("<plist><dict/></plist>", {"b"}), "<plist><dict>\n" + b + "</dict></plist>");
  EXPECT_EQ(with("<plist><dict><key>a</key><string>1</string></dict></plist>", {"<"}),
            "<plist><dict><key>&lt;</key><string>x</string> <key>a</key><string>1</string></dict></plist>");
}

TEST(StringsInsertion, ACommentIsWrittenAsFarAsTheEncodingGoes) {
  const StringsDocument document("/* \x8A */\na = 1;\n", EightBitEncoding::MacRoman);
  EXPECT_EQ(editedStrings(document, {{"b", "ü", "äж"}}, nullptr).value(),
            "/* \x8A */\na = 1;\n\n/* \x8A? */\nb = \"\x9F\";\n");
}

TEST(StringsInsertion, OldEntriesCanGoAtTheSameTime) {
  const StringsDocument development("a;\nb;\nc;\n");
  EXPECT_EQ(editedStrings(StringsDocument("a = 1;\nc = 2;\n"), {{"a", std::nullopt, {}}, {"b", "x", {}}}, &development)
                .value(),
            "b = \"x\";\nc = 2;\n");
  EXPECT_EQ(editedStrings(StringsDocument("a = 1;\n"), {{"a", std::nullopt, {}}, {"b", "x", {}}}, nullptr).value(),
            "\"b\" = \"x\";\n");
}

}  // namespace
}  // namespace glossmill
