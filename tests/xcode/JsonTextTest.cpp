#include <gtest/gtest.h>

#include "text/Utf8.h"
#include "xcode/JsonText.h"
#include "xcode/JsonTreeReader.h"

namespace glossmill {
namespace {

TEST(JsonText, EscapesReadAsTheirCharacters) {
  EXPECT_EQ(unescapeJson(R"(a\"b\\c\/d\b\f\n\r\t)"), "a\"b\\c/d\b\f\n\r\t");
  EXPECT_EQ(unescapeJson(R"(\u0041\u00e4\uD83D\uDEA2)"), "A\xC3\xA4\xF0\x9F\x9A\xA2");
}

TEST(JsonText, HalfAPairIsAReplacementCharacter) {
  EXPECT_EQ(unescapeJson(R"(\uD83D!)"), "\xEF\xBF\xBD!");
  EXPECT_EQ(unescapeJson(R"(\uDEA2)"), "\xEF\xBF\xBD");
  EXPECT_EQ(unescapeJson(R"(\uD83D\u0041)"),
            "\xEF\xBF\xBD"
            "A");
}

TEST(JsonText, EveryCharacterComesBack) {
  constexpr char32_t kBlock = 0x1000;
  for (char32_t block = 0; block <= 0x10FFFF; block += kBlock) {
    std::string value;
    for (char32_t character = block; character < block + kBlock; ++character) {
      if (character < 0xD800 || character > 0xDFFF) appendUtf8(value, character);
    }
    const std::string text = '"' + escapeJson(value) + '"';
    const ReadTree read = readJsonTree(text);
    ASSERT_FALSE(read.mistake) << std::hex << static_cast<unsigned>(block);
    ASSERT_EQ(read.tree.textOf(0), value);
  }
}

TEST(JsonText, SlashesAndOtherCharactersStayAsTheyAre) {
  EXPECT_EQ(escapeJson("a/b\xC3\xA4\x7F"), "a/b\xC3\xA4\x7F");
  EXPECT_EQ(escapeJson("\x01\x1f"), "\\u0001\\u001f");
}

std::string sentenceFor(std::string_view text) {
  const ReadTree read = readJsonTree(text);
  return read.mistake ? std::to_string(read.mistake->at) + " " + std::string(read.mistake->sentence) : "";
}

TEST(JsonTreeReader, TakesEveryKindOfValue) {
  const std::string text = R"( {"a" : "x", "b":{}, "c":[1, [true], {"d":null}], "e":-1.5e+3} )";
  const ReadTree read = readJsonTree(text);
  ASSERT_FALSE(read.mistake);
  EXPECT_EQ(read.tree.textOf(read.tree.member(0, "a")), "x");
  EXPECT_TRUE(read.tree.isObject(read.tree.member(0, "b")));
  EXPECT_EQ(read.tree.spelled(read.tree.member(0, "c")), R"([1, [true], {"d":null}])");
  EXPECT_EQ(read.tree.spelled(read.tree.member(0, "e")), "-1.5e+3");
  EXPECT_EQ(read.tree.member(0, "d"), ValueTree::kNone);
}

TEST(JsonTreeReader, OfARepeatedNameTheLastMemberCounts) {
  const ReadTree read = readJsonTree(R"({"a":"x","\u0061":"y"})");
  EXPECT_EQ(read.tree.textOf(read.tree.member(0, "a")), "y");
}

TEST(JsonTreeReader, AMistakeHasAPlaceAndASentence) {
  EXPECT_EQ(sentenceFor(R"({"a":1,})"), "7 A name between quotes is missing here.");
  EXPECT_EQ(sentenceFor(R"({"a" 1})"), "5 “:” is missing behind a name.");
  EXPECT_EQ(sentenceFor(R"({"a":1 "b":2})"), "7 “,” or “}” is missing here.");
  EXPECT_EQ(sentenceFor(R"({"a":"x)"), "5 A text between quotes is not closed.");
  EXPECT_EQ(sentenceFor(R"({"a":"\x"})"), "6 This is no escape that JSON knows.");
  EXPECT_EQ(sentenceFor("{\"a\":\"x\n\"}"), "7 A text between quotes holds a line end or another control character.");
  EXPECT_EQ(sentenceFor(R"({"a":nil})"), "5 A value is missing here.");
  EXPECT_EQ(sentenceFor(R"({"a":[1)"), "7 The file ends before its object does.");
  EXPECT_EQ(sentenceFor(R"({"a":01})"), "6 “,” or “}” is missing here.");
  EXPECT_EQ(sentenceFor("{} x"), "3 Nothing may follow the end of the object.");
  EXPECT_EQ(sentenceFor(""), "0 The file ends before its object does.");
}

TEST(JsonTreeReader, DeepNestingIsRefused) {
  EXPECT_EQ(sentenceFor(std::string(127, '[') + std::string(127, ']')), "");
  EXPECT_EQ(sentenceFor(std::string(100000, '[')), "128 Values are nested too deep.");
  std::string objects;
  for (int level = 0; level < 1000; ++level) objects += "{\"a\":";
  EXPECT_EQ(sentenceFor(objects), "640 Values are nested too deep.");
}

TEST(JsonTreeReader, WhatStandsInFrontOfAMistakeCanBeRead) {
  const ReadTree read = readJsonTree(R"({"a":{"b":"x","c":)");
  ASSERT_TRUE(read.mistake);
  EXPECT_EQ(read.tree.textOf(read.tree.member(read.tree.member(0, "a"), "b")), "x");
}

}  // namespace
}  // namespace glossmill
