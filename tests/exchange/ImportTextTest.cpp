#include <gtest/gtest.h>

#include "exchange/ImportText.h"

namespace glossmill {
namespace {

TEST(ImportText, GivesTheTranslationOfEachBlock) {
  EXPECT_EQ(importTable("\n--- 1 ---\n/* Menu */\nOpen\nOuvrir\n\n--- 2 ---\n/*  */\nClose\nFermer\n\n"),
            (ImportTable{{"Open", "Ouvrir"}, {"Close", "Fermer"}}));
}

TEST(ImportText, TakesNothingFromAnEmptyTranslationLine) {
  EXPECT_EQ(importTable("\n--- 1 ---\n/*  */\nOpen\n\n\n--- 2 ---\n/*  */\nClose\nFermer\n\n"),
            (ImportTable{{"Close", "Fermer"}}));
}

TEST(ImportText, IsEmptyForAnEmptyFileOrOneWithoutDashes) {
  EXPECT_TRUE(importTable("").empty());
  EXPECT_TRUE(importTable("Open\nOuvrir\n-- 1 --\nClose\nFermer\n").empty());
}

TEST(ImportText, IgnoresTheNumbers) {
  EXPECT_EQ(importTable("--- 7 ---\n\nOpen\nOuvrir\n\n---\n\nClose\nFermer"),
            (ImportTable{{"Open", "Ouvrir"}, {"Close", "Fermer"}}));
}

TEST(ImportText, IgnoresLinesBetweenBlocks) {
  EXPECT_EQ(importTable("Dear translator,\n\n--- 1 ---\n\nOpen\nOuvrir\nRegards\n\n\n--- 2 ---\n\nClose\nFermer\n"),
            (ImportTable{{"Open", "Ouvrir"}, {"Close", "Fermer"}}));
}

TEST(ImportText, LetsTheLaterBlockOfAKeyWin) {
  EXPECT_EQ(importTable("--- 1 ---\n\nOpen\nOuvrir\n\n--- 2 ---\n\nOpen\nOuverture\n\n"),
            (ImportTable{{"Open", "Ouverture"}}));
}

TEST(ImportText, KeepsTheEarlierBlockOfAKeyWhenTheLaterIsEmpty) {
  EXPECT_EQ(importTable("--- 1 ---\n\nOpen\nOuvrir\n\n--- 2 ---\n\nOpen\n\n\n"), (ImportTable{{"Open", "Ouvrir"}}));
}

TEST(ImportText, ReadsNothingFromABlockWhoseCommentLineWasDeleted) {
  EXPECT_EQ(importTable("\n--- 1 ---\nOpen\nOuvrir\n\n--- 2 ---\n/*  */\nClose\nFermer\n\n"),
            (ImportTable{{"Close", "Fermer"}}));
}

TEST(ImportText, StartsABlockAtAnyLineWithThreeDashesInARow) {
  EXPECT_EQ(importTable("----\n\nOpen\nOuvrir\n"), (ImportTable{{"Open", "Ouvrir"}}));
  EXPECT_EQ(importTable("a remark --- a long one\n\nOpen\nOuvrir\n"), (ImportTable{{"Open", "Ouvrir"}}));
}

TEST(ImportText, TakesDashesInsideABlockAsText) {
  EXPECT_EQ(importTable("--- 1 ---\n--- 2 ---\n--- 3 ---\n--- 4 ---\n"), (ImportTable{{"--- 3 ---", "--- 4 ---"}}));
}

TEST(ImportText, SkipsACommentOfSeveralLinesAsOne) {
  EXPECT_EQ(importTable("--- 1 ---\n/* Menu\nButton\n--- */\nOpen\nOuvrir\n\n"), (ImportTable{{"Open", "Ouvrir"}}));
}

TEST(ImportText, KeepsBlanksAroundKeysAndTranslations) {
  EXPECT_EQ(importTable("--- 1 ---\n\n Open \n Ouvrir \n"), (ImportTable{{" Open ", " Ouvrir "}}));
}

TEST(ImportText, KeepsACarriageReturnAsPartOfItsLine) {
  EXPECT_EQ(importTable("--- 1 ---\r\n/*  */\r\nOpen\r\nOuvrir\r\n\r\n"), (ImportTable{{"Open\r", "Ouvrir\r"}}));
}

TEST(ImportText, TakesALoneCarriageReturnAsATranslation) {
  EXPECT_EQ(importTable("--- 1 ---\r\n/*  */\r\nOpen\r\n\r\n\r\n"), (ImportTable{{"Open\r", "\r"}}));
}

TEST(ImportText, ReadsABlockThatIsCutOffAsFarAsItGoes) {
  EXPECT_EQ(importTable("--- 1 ---\n\nOpen\nOuvrir"), (ImportTable{{"Open", "Ouvrir"}}));
  EXPECT_TRUE(importTable("--- 1 ---\n\nOpen\n").empty());
  EXPECT_TRUE(importTable("--- 1 ---\n\nOpen").empty());
  EXPECT_TRUE(importTable("--- 1 ---").empty());
}

TEST(ImportText, SplitsAKeyWithALineFeedIntoKeyAndTranslation) {
  EXPECT_EQ(importTable("--- 1 ---\n/*  */\nOpen\nthe file\nOuvrir\nle fichier\n\n"),
            (ImportTable{{"Open", "the file"}}));
}

TEST(ImportText, CutsATranslationAtItsFirstLineFeed) {
  EXPECT_EQ(importTable("--- 1 ---\n/*  */\nOpen\nOuvrir\nle fichier\n\n"), (ImportTable{{"Open", "Ouvrir"}}));
}

TEST(ImportText, LosesASlashAndTheCharacterAfterIt) {
  EXPECT_EQ(importTable("--- 1 ---\n\nOn\nactif/inactif\n"), (ImportTable{{"On", "actifnactif"}}));
  EXPECT_EQ(importTable("--- 1 ---\n\nOn/Off\nactif\n"), (ImportTable{{"Onff", "actif"}}));
}

TEST(ImportText, LosesTheLineFeedAfterASlashAtTheEndOfALine) {
  EXPECT_EQ(importTable("--- 1 ---\n\nPath/\nchemin\n\n"), (ImportTable{}));
}

TEST(ImportText, LosesTheRestOfALineAfterTwoSlashesAndJoinsTheNext) {
  EXPECT_EQ(importTable("--- 1 ---\n\nSite\nvoir http://example.org\n\n--- 2 ---\n\nClose\nFermer\n"),
            (ImportTable{{"Site", "voir http:"}, {"Close", "Fermer"}}));
  EXPECT_TRUE(importTable("--- 1 ---\n\nhttp://example.org\nle site\n\n").empty());
}

TEST(ImportText, LosesEverythingUpToTheNextCommentEndAfterSlashAndStar) {
  EXPECT_EQ(importTable("--- 1 ---\n/*  */\nAll\n*/* tous\n\n--- 2 ---\n/*  */\nOpen\nOuvrir\n\n"),
            (ImportTable{{"All", "*"}}));
}

TEST(ImportText, KeepsSlashesBetweenDoubleQuotes) {
  EXPECT_EQ(importTable("--- 1 ---\n\nSite\nvoir \"http://example.org/\"\n"),
            (ImportTable{{"Site", "voir \"http://example.org/\""}}));
}

TEST(ImportText, KeepsCommentsUntilTheNextQuoteAfterAnUnpairedOne) {
  const char* const blocks =
      "--- 1 ---\n/*  */\nInch\n12\"\n\n--- 2 ---\n/* Menu\nButton */\nOpen\nOuvrir\n\n--- 3 ---\n/*  */\nClose\n";
  EXPECT_EQ(importTable(std::string(blocks) + "Fermer\n"),
            (ImportTable{{"Inch", "12\""}, {"Button */", "Open"}, {"Close", "Fermer"}}));
}

TEST(ImportText, DoesNotEndAStringAtAnEscapedQuote) {
  EXPECT_EQ(importTable("--- 1 ---\n\nSay\n\"a\\\"/b\"/c/d\n"), (ImportTable{{"Say", "\"a\\\"/b\""}}));
}

TEST(ImportText, FindsNoCommentEndBehindAnOddStar) {
  EXPECT_TRUE(importTable("--- 1 ---\n/***/\nOpen\nOuvrir\n").empty());
}

}  // namespace
}  // namespace glossmill
