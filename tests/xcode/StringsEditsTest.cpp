#include <gtest/gtest.h>

#include "xcode/StringsEdits.h"

namespace glossmill {
namespace {

/// The bytes after the edits, or "error: " and the sentence.
std::string edited(const std::string& bytes, const std::vector<StringsEdit>& edits,
                   std::optional<FileEncoding> otherwise = std::nullopt) {
  const Result<std::string> result = editedStrings(StringsDocument(bytes, otherwise), edits, nullptr);
  return result ? result.value() : "error: " + result.error().sentence;
}

StringsEdit set(const std::string& key, const std::string& value) {
  return {key, value, {}};
}

std::string inXml(const std::string& inside) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>" + inside + "</dict>\n</plist>\n";
}

TEST(StringsEdits, NoEditChangesNothing) {
  for (const std::string bytes : {"", "\n", "a;", "{a=b}", "\uFEFF\uFEFF a = b;\r\n", "// c"}) {
    EXPECT_EQ(edited(bytes, {}), bytes);
  }
}

TEST(StringsEdits, OnlyTheValueChanges) {
  EXPECT_EQ(edited("/* a */\n \"b\"\t=  \"c\" ;// d\n\"e\" = \"f\";", {set("b", "x")}),
            "/* a */\n \"b\"\t=  \"x\" ;// d\n\"e\" = \"f\";");
}

TEST(StringsEdits, AValueThatStaysTheSameKeepsItsSpelling) {
  const std::string bytes = "a = \"\\U00e4\\q\"; b = 'c'; d; e = f;";
  EXPECT_EQ(edited(bytes, {set("a", "äq"), set("b", "c"), set("d", "d"), set("e", "f")}), bytes);
}

TEST(StringsEdits, ValuesAreEscapedForTheirQuotes) {
  EXPECT_EQ(
      edited("\"a\" = \"b\"; c = 'd'; e = f;", {set("a", "\"x'\\\n\t\x01"), set("c", "it's \"x\""), set("e", "g")}),
      "\"a\" = \"\\\"x'\\\\\\n\\t\\U0001\"; c = 'it\\'s \"x\"'; e = \"g\";");
}

TEST(StringsEdits, AKeyAloneGetsAValue) {
  EXPECT_EQ(edited("\"a\";\nb /* c */;\n", {set("a", "x"), set("b", "y")}), "\"a\" = \"x\";\nb = \"y\" /* c */;\n");
}

TEST(StringsEdits, OfARepeatedKeyTheLastEntryChanges) {
  EXPECT_EQ(edited("a = 1;\na = 2;\nb = 3;\n", {set("a", "x")}), "a = 1;\na = \"x\";\nb = 3;\n");
}

TEST(StringsEdits, OfSeveralEditsOfAKeyTheLastCounts) {
  EXPECT_EQ(edited("a = 1;\n", {set("a", "x"), set("a", "y")}), "a = \"y\";\n");
  EXPECT_EQ(edited("a = 1;\n", {set("a", "x"), {"a", std::nullopt, {}}}), "");
}

TEST(StringsEdits, TakingOutWhatIsNotThereChangesNothing) {
  EXPECT_EQ(edited("a = 1;\n", {{"b", std::nullopt, {}}}), "a = 1;\n");
}

TEST(StringsEdits, AFileWithAMistakeIsNeverWritten) {
  EXPECT_EQ(edited("a = 1;\nb", {set("a", "x")}), "error: “=” is missing behind a key.");
}

TEST(StringsEdits, XmlValuesChangeInTheSameWay) {
  const std::string entries = "\n\t<key>a</key>\n\t<string>b</string>\n\t<key>c</key>\n\t<string/>\n";
  EXPECT_EQ(
      edited(inXml(entries), {set("a", "<x> & \"y\"\n"), set("c", "z")}),
      inXml("\n\t<key>a</key>\n\t<string>&lt;x&gt; &amp; \"y\"\n</string>\n\t<key>c</key>\n\t<string>z</string>\n"));
  EXPECT_EQ(edited(inXml(entries), {set("c", "")}), inXml(entries));
  EXPECT_EQ(edited(inXml(entries), {set("a", "\x01")}),
            "error: The text holds a character that XML has no way to write.");
}

TEST(StringsEdits, TheEncodingStays) {
  EXPECT_EQ(edited("\"\x8A\" = \"b\";", {set("ä", "ü“")}, EightBitEncoding::MacRoman), "\"\x8A\" = \"\x9F\xD2\";");
  using namespace std::string_literals;
  EXPECT_EQ(edited("\xFE\xFF\0a\0=\0b\0;"s, {set("a", "ж")}), "\xFE\xFF\0a\0=\0\"\x04\x36\0\"\0;"s);
  EXPECT_EQ(edited("\uFEFFa=b;", {set("a", "ж")}), "\uFEFFa=\"ж\";");
}

TEST(StringsEdits, ACharacterThatTheEncodingLacksIsAnError) {
  EXPECT_EQ(edited("\"\x8A\" = \"b\";", {set("ä", "ж")}, EightBitEncoding::MacRoman),
            "error: The character “ж” cannot be written in the encoding of the file, Mac Roman.");
}

TEST(StringsEdits, WhatWouldBeReadInAnotherEncodingIsAnError) {
  // In Mac Roman these two are the bytes of "é" in UTF-8.
  EXPECT_EQ(edited("a = \"\x8A\";", {set("a", "√©")}, EightBitEncoding::MacRoman),
            "error: The text would be read in another encoding than that of the file, Mac Roman.");
  EXPECT_EQ(edited("a = \"\x8A\";", {set("a", "e")}, EightBitEncoding::MacRoman), "a = \"e\";");
  // The zero byte is the fifth, which no unit of UTF-16 holds as long as nothing follows.
  using namespace std::string_literals;
  EXPECT_EQ(edited("//<!\0"s, {set("a", "b")}),
            "error: The text would be read in another encoding than that of the file, UTF-8.");
}

}  // namespace
}  // namespace glossmill
