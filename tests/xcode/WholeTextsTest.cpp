#include <gtest/gtest.h>

#include <string>

#include "xcode/WholeTexts.h"

namespace glossmill {
namespace {

WholeTexts ofSource(std::string_view text) {
  WholeTexts texts;
  texts.addSource(text);
  return texts;
}

WholeTexts ofDocument(std::string_view text) {
  WholeTexts texts;
  texts.addDocument(text);
  return texts;
}

TEST(WholeTexts, HoldWhatStandsBetweenQuotesOfALine) {
  WholeTexts texts = ofSource("a = @\"Hoist\"; b = \"Lower\"\nc = \"open\nd\"");
  EXPECT_TRUE(texts.hold("Hoist"));
  EXPECT_TRUE(texts.hold("Lower"));
  EXPECT_FALSE(texts.hold("Hois"));
  EXPECT_FALSE(texts.hold("open\nd"));
  EXPECT_FALSE(texts.hold("open"));
}

TEST(WholeTexts, AStrayQuoteHidesNothingOnItsLine) {
  EXPECT_TRUE(ofSource("c = '\"'; s = @\"Hoist\";").hold("Hoist"));
}

TEST(WholeTexts, EscapesAreRead) {
  WholeTexts texts = ofSource(R"(a = "say \"ahoy\"\n"; b = "\u{e4}";)");
  EXPECT_TRUE(texts.hold("say \"ahoy\"\n"));
  EXPECT_TRUE(texts.hold("ä"));
}

TEST(WholeTexts, LiteralsThatTheCompilerJoinsAreOneText) {
  WholeTexts texts = ofSource("a = @\"Hoist \" @\"the \"\n    @\"sails\"; b = @\"Cast \" \"off\";");
  EXPECT_TRUE(texts.hold("Hoist the sails"));
  EXPECT_TRUE(texts.hold("Cast off"));
  EXPECT_TRUE(texts.hold("sails"));
  EXPECT_FALSE(texts.hold("Hoist the sailsCast off"));
  EXPECT_FALSE(ofSource("[NSArray arrayWithObjects:@\"a\", @\"b\", nil]").hold("ab"));
}

TEST(WholeTexts, CommentsAndContinuationsMayStandBetweenLiteralsThatAreJoined) {
  EXPECT_TRUE(ofSource("@\"Hoist \" /* \"x\" */ @\"it\"").hold("Hoist it"));
  EXPECT_TRUE(ofSource("@\"Hoist \" // what?\n  @\"it\"").hold("Hoist it"));
  EXPECT_TRUE(ofSource("#define HOIST @\"Hoist \" \\\n  @\"it\"\n").hold("Hoist it"));
  EXPECT_TRUE(ofSource("c = '\"'; s = @\"Hoist \" @\"it\";").hold("Hoist it"));
}

TEST(WholeTexts, EscapesMayRunThroughTheEndsOfJoinedLiterals) {
  EXPECT_TRUE(ofSource(R"(a = @"\xc3" "\xa4";)").hold("ä"));
  EXPECT_TRUE(ofSource(R"(a = @"one\n" @"two\t";)").hold("one\ntwo\t"));
}

TEST(WholeTexts, ALiteralGoesOnInAContinuedLine) {
  EXPECT_TRUE(ofSource("a = @\"Hoist \\\nit\";").hold("Hoist it"));
  EXPECT_TRUE(ofSource("a = @\"Hoist \\\r\nit\";").hold("Hoist it"));
  EXPECT_TRUE(ofSource("a = @\"Hoist \\  \nit\";").hold("Hoist it"));
}

TEST(WholeTexts, OfAnotherAreHeldToo) {
  WholeTexts texts = ofSource("\"Hoist\"");
  EXPECT_TRUE(texts.hold("Hoist"));
  texts.add(ofSource("\"Lower\""));
  EXPECT_TRUE(texts.hold("Lower"));
  EXPECT_TRUE(texts.hold("Hoist"));
  EXPECT_FALSE(WholeTexts().hold(""));
}

TEST(WholeTexts, ABackslashAtTheEndDoesNoHarm) {
  EXPECT_FALSE(ofSource("\"a\\").hold("a"));
}

TEST(WholeTexts, HoldWhatStandsBetweenTagsAndInAttributes) {
  WholeTexts texts = ofDocument("<string key=\"Hoist\">Fish &amp; chips</string>");
  EXPECT_TRUE(texts.hold("Hoist"));
  EXPECT_TRUE(texts.hold("Fish & chips"));
  EXPECT_FALSE(texts.hold("Fish"));
}

TEST(WholeTexts, ManyStayFindable) {
  std::string source;
  for (int i = 0; i < 5000; ++i) source += "\"key " + std::to_string(i) + "\"\n";
  WholeTexts texts = ofSource(source);
  EXPECT_TRUE(texts.hold("key 4999"));
  EXPECT_FALSE(texts.hold("key 5000"));
}

}  // namespace
}  // namespace glossmill
