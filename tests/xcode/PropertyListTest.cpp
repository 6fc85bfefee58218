#include <gtest/gtest.h>

#include "xcode/PrintedPropertyList.h"
#include "xcode/PropertyList.h"
#include "xcode/PropertyListBuilder.h"

namespace glossmill {
namespace {

/// What the text holds, and behind it the mistake, if there is one.
std::string read(std::string text) {
  const PropertyList list(std::move(text));
  const std::string mistake = mistakeOf(list);
  return mistake.empty() ? printed(list) : printed(list) + " " + mistake;
}

TEST(PropertyList, ReadsAllKindsOfValues) {
  EXPECT_EQ(read("{ a = b; \"c d\" = 'e'; f = ( g, \"h\", ); i = <0fbd 77>; j = { k = l; }; m = (); n = {}; }"),
            R"({"a"="b";"c d"="e";"f"=("g","h",);"i"=<0fbd 77>;"j"={"k"="l";};"m"=();"n"={};})");
}

TEST(PropertyList, AnyValueMayBeTheWhole) {
  EXPECT_EQ(read("text"), R"("text")");
  EXPECT_EQ(read("\"two words\" // and a comment"), R"("two words")");
  EXPECT_EQ(read("<>"), "<>");
}

TEST(PropertyList, CommentsStandAnywhereBetweenWords) {
  EXPECT_EQ(read("// !$*UTF8*$!\n/**/{/*a*/a /*b*/=/*c*/\"b\"/*d*/;//e\n/*f*/c=(/*g*/d /*h*/,/*i*/)/*j*/;}/*k*/"),
            R"({"a"="b";"c"=("d",);})");
}

TEST(PropertyList, ASlashBelongsToTheBareWordInFront) {
  EXPECT_EQ(read("{ a//b = c; }"), R"({"a//b"="c";})");
  EXPECT_EQ(read("{ a/*b*/ = c; }"), "{} 1:5 “=” is missing behind a key.");
}

TEST(PropertyList, ADictionaryKeepsItsOrderAndTheLastValueOfAKeyCounts) {
  const PropertyList list("{ z = 1; a = 2; z = 3; }");
  EXPECT_EQ(printed(list), R"({"z"="1";"a"="2";"z"="3";})");
  EXPECT_EQ(list.root()["z"].text(), "3");
}

TEST(PropertyList, EscapesAreGone) {
  const PropertyList list(R"({ "a\"b" = "c\nd\U00e4"; })");
  EXPECT_EQ(list.root()["a\"b"].text(), "c\ndä");
}

TEST(PropertyList, AKeyAloneIsItsOwnValue) {
  EXPECT_EQ(read("{ a; \"b\\n\"; }"), R"({"a"="a";"b\n"="b\n";})");
}

TEST(PropertyList, TheLastSeparatorMayBeMissing) {
  EXPECT_EQ(read("{ a = b }"), R"({"a"="b";})");
  EXPECT_EQ(read("( a, b )"), R"(("a","b",))");
}

TEST(PropertyList, MarksInFrontArePassedOver) {
  EXPECT_EQ(read("\uFEFF\uFEFF{a=b;}"), R"({"a"="b";})");
}

TEST(PropertyList, WhatIsNotThereIsNothing) {
  const PropertyList list("{ a = b; c = (d); }");
  EXPECT_FALSE(list.root()["x"]);
  EXPECT_EQ(list.root()["x"]["y"].text(), "");
  EXPECT_FALSE(list.root()["a"]["y"]);
  EXPECT_EQ(list.root()["c"].text(), "");
  for (const auto item : list.root()["a"].items()) FAIL() << item.text();
  for (const auto entry : list.root()["c"].entries()) FAIL() << entry.key;
  EXPECT_FALSE(PropertyList().root());
}

TEST(PropertyList, AMistakeIsToldWithItsPlace) {
  EXPECT_EQ(read(""), "nothing 1:1 The file ends before its list does.");
  EXPECT_EQ(read("{\n  a = b\n  c = d;\n}"), R"({"a"="b";} 2:8 “;” is missing behind a value.)");
  EXPECT_EQ(read("{\n  a b;\n}"), R"({} 2:4 “=” is missing behind a key.)");
  EXPECT_EQ(read("{ a = ; }"), R"({} 1:7 A value is missing here.)");
  EXPECT_EQ(read("{ a = b; = c; }"), R"({"a"="b";} 1:10 A key or “}” is missing here.)");
  EXPECT_EQ(read("{ a = (b c); }"), R"({"a"=("b",);} 1:9 “,” is missing behind a value.)");
  EXPECT_EQ(read("{ a = \"b; }"), R"({} 1:7 A text between quotes is not closed.)");
  EXPECT_EQ(read("{ \"b; }"), R"({} 1:3 A text between quotes is not closed.)");
  EXPECT_EQ(read("{ a = b; /* }"), R"({"a"="b";} 1:10 A comment is not closed.)");
  EXPECT_EQ(read("{ a = b; "), R"({"a"="b";} 1:10 The file ends before its list does.)");
  EXPECT_EQ(read("{ a = { b = c; }"), R"({"a"={"b"="c";};} 1:17 The file ends before its list does.)");
  EXPECT_EQ(read("{} x"), "{} 1:4 Nothing may follow the end of the list.");
  EXPECT_EQ(read("{ a = <0g>; }"), "{} 1:7 Data is not closed, or holds more than digits.");
  EXPECT_EQ(read("{ a = <00"), "{} 1:7 Data is not closed, or holds more than digits.");
  EXPECT_EQ(read("{\n<<<<<<< HEAD\n}"), "{} 2:1 A key or “}” is missing here.");
}

std::string nested(std::size_t levels) {
  std::string text;
  for (std::size_t level = 0; level < levels; ++level) text += level % 2 == 0 ? "{a=" : "(";
  text += 'b';
  for (std::size_t level = levels; level-- > 0;) text += level % 2 == 0 ? ";}" : ")";
  return text;
}

TEST(PropertyList, IsNestedToALimit) {
  const std::size_t most = PropertyListBuilder::kMostLevels;
  EXPECT_FALSE(PropertyList(nested(most)).error());
  EXPECT_EQ(mistakeOf(PropertyList(nested(most + 1))),
            "1:" + std::to_string(most * 2 + 1) + " The list is nested too deeply.");
  EXPECT_TRUE(PropertyList(std::string(1000000, '(')).error());
}

}  // namespace
}  // namespace glossmill
