#include <gtest/gtest.h>

#include "support/ExportedBlock.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

LocalizeString record(std::string_view key, std::vector<std::string> comments = {}) {
  LocalizeString made;
  made.setName(key);
  made.setCommentArray(std::move(comments));
  return made;
}

LocalizeString inFrench(std::string_view key, std::string_view translation, std::vector<std::string> comments = {}) {
  LocalizeString made = record(key, std::move(comments));
  store(made, kFrench, translation);
  return made;
}

std::string block(const LocalizeString& record, std::int64_t number, ExportScope scope) {
  std::string text;
  appendExportBlock(text, record, number, kFrench, scope);
  return text;
}

TEST(ExportText, StartsWithOneEmptyLine) {
  EXPECT_STREQ(kExportTextStart, "\n");
}

TEST(ExportText, HasNumberCommentKeyAndTranslationInABlock) {
  EXPECT_EQ(block(inFrench("Open", "Ouvrir", {"Menu"}), 12, ExportScope::AllStrings),
            "--- 12 ---\n/* Menu */\nOpen\nOuvrir\n\n");
}

TEST(ExportText, HasAnEmptyTranslationLineForAnUntranslatedString) {
  EXPECT_EQ(block(record("Open", {"Menu"}), 2, ExportScope::AllStrings), "--- 2 ---\n/* Menu */\nOpen\n\n\n");
  EXPECT_EQ(block(record("Open", {"Menu"}), 2, ExportScope::Untranslated), "--- 2 ---\n/* Menu */\nOpen\n\n\n");
}

TEST(ExportText, LeavesOutTranslatedStringsWhenOnlyUntranslatedOnesAreWanted) {
  EXPECT_EQ(block(inFrench("Open", "Ouvrir"), 1, ExportScope::Untranslated), "");
}

TEST(ExportText, TreatsAnEmptyEntryAsTranslated) {
  EXPECT_EQ(block(inFrench("Open", ""), 1, ExportScope::Untranslated), "");
  EXPECT_EQ(block(inFrench("Open", ""), 1, ExportScope::AllStrings), "--- 1 ---\n/*  */\nOpen\n\n\n");
}

TEST(ExportText, HasAnEmptyCommentForAStringWithoutComments) {
  EXPECT_EQ(block(record("Open"), 1, ExportScope::AllStrings), "--- 1 ---\n/*  */\nOpen\n\n\n");
}

TEST(ExportText, SpreadsTwoCommentsOverTwoLines) {
  EXPECT_EQ(block(record("Open", {"Menu", "Button"}), 1, ExportScope::AllStrings),
            "--- 1 ---\n/* Menu\nButton */\nOpen\n\n\n");
}

TEST(ExportText, WritesLineFeedsAndPercentSignsAsTheyAre) {
  EXPECT_EQ(block(inFrench("%@\nof %ld", "%@\nde\n%ld", {"100 %"}), 1, ExportScope::AllStrings),
            "--- 1 ---\n/* 100 % */\n%@\nof %ld\n%@\nde\n%ld\n\n");
}

TEST(ExportText, KnowsAStringOnlyByTheWantedLanguage) {
  LocalizeString german = record("Open");
  store(german, LanguageCode("de"), "Öffnen");
  EXPECT_EQ(block(german, 1, ExportScope::Untranslated), "--- 1 ---\n/*  */\nOpen\n\n\n");
}

}  // namespace
}  // namespace glossmill
