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
  const WholeTexts texts = ofSource("a = @\"Hoist\"; b = \"Lower\"\nc = \"open\nd\"");
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
  const WholeTexts texts = ofSource(R"(a = "say \"ahoy\"\n"; b = "\u{e4}";)");
  EXPECT_TRUE(texts.hold("say \"ahoy\"\n"));
  EXPECT_TRUE(texts.hold("ä"));
}

TEST(WholeTexts, ABackslashAtTheEndDoesNoHarm) {
  EXPECT_FALSE(ofSource("\"a\\").hold("a"));
}

TEST(WholeTexts, HoldWhatStandsBetweenTagsAndInAttributes) {
  const WholeTexts texts = ofDocument("<string key=\"Hoist\">Fish &amp; chips</string>");
  EXPECT_TRUE(texts.hold("Hoist"));
  EXPECT_TRUE(texts.hold("Fish & chips"));
  EXPECT_FALSE(texts.hold("Fish"));
}

TEST(WholeTexts, ManyStayFindable) {
  std::string source;
  for (int i = 0; i < 5000; ++i) source += "\"key " + std::to_string(i) + "\"\n";
  const WholeTexts texts = ofSource(source);
  EXPECT_TRUE(texts.hold("key 4999"));
  EXPECT_FALSE(texts.hold("key 5000"));
}

}  // namespace
}  // namespace glossmill
