#include <gtest/gtest.h>

#include "strings/StringsFileWriter.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

std::shared_ptr<LocalizeString> record(std::string_view key, std::vector<std::string> comments = {}) {
  auto made = std::make_shared<LocalizeString>();
  made->setName(key);
  made->setCommentArray(std::move(comments));
  return made;
}

std::shared_ptr<LocalizeString> inFrench(std::string_view key, std::string_view translation,
                                         std::vector<std::string> comments = {}) {
  auto made = record(key, std::move(comments));
  store(*made, kFrench, translation);
  return made;
}

TEST(StringsFileWriter, GivesASingleLineFeedForALanguageWithoutTranslations) {
  EXPECT_EQ(stringsFileText({record("Open"), inFrench("Close", "Fermer")}, kGerman), "\n");
  EXPECT_EQ(stringsFileText({}, kFrench), "\n");
}

TEST(StringsFileWriter, WritesCommentLineEntryWithoutSemicolonAndEmptyLine) {
  EXPECT_EQ(stringsFileText({inFrench("Open", "Ouvrir", {"Menu title"})}, kFrench),
            "\n/* Menu title */\n\"Open\" = \"Ouvrir\"\n\n");
}

TEST(StringsFileWriter, WritesTwoBlanksInTheCommentLineOfARecordWithoutComments) {
  EXPECT_EQ(stringsFileText({inFrench("Open", "Ouvrir")}, kFrench), "\n/*  */\n\"Open\" = \"Ouvrir\"\n\n");
}

TEST(StringsFileWriter, SpreadsSeveralCommentsOverTheLinesOfOneBlock) {
  EXPECT_EQ(stringsFileText({inFrench("Open", "Ouvrir", {"Menu", "Button"})}, kFrench),
            "\n/* Menu\nButton */\n\"Open\" = \"Ouvrir\"\n\n");
}

TEST(StringsFileTexts, GivesALongTextInPiecesThatEndBehindARecord) {
  StringArray records;
  std::string expected = "\n";
  for (int number = 0; number < 5000; ++number) {
    const std::string key = "key " + std::to_string(number);
    records.push_back(number % 7 == 0 ? record(key) : inFrench(key, "traduction"));
    if (number % 7 != 0) expected += "/*  */\n\"" + key + "\" = \"traduction\"\n\n";
  }
  StringsFileTexts texts(records, {kGerman, kFrench});
  for (const LanguageCode language : {kFrench, kGerman, kFrench}) {
    texts.start(language);
    std::string joined;
    std::size_t pieces = 0;
    for (std::string_view piece = texts.nextPiece(); !piece.empty(); piece = texts.nextPiece(), ++pieces) {
      EXPECT_EQ(piece.back(), '\n');
      joined += piece;
    }
    EXPECT_EQ(joined, language == kFrench ? expected : "\n");
    EXPECT_EQ(pieces, language == kFrench ? 3U : 1U);
    EXPECT_EQ(texts.nextPiece(), "");
  }
}

TEST(StringsFileTexts, OutlivesTheRecordsOfAProjectThatWasClosed) {
  StringArray records = {inFrench("Open", "Ouvrir un document qui existe depuis longtemps")};
  StringsFileTexts texts(records, {kFrench});
  const std::weak_ptr<LocalizeString> watched = records.front();
  records.clear();
  EXPECT_FALSE(watched.expired());
  texts.start(kFrench);
  EXPECT_EQ(texts.nextPiece(), "\n/*  */\n\"Open\" = \"Ouvrir un document qui existe depuis longtemps\"\n\n");
}

TEST(StringsFileWriter, LeavesOutRecordsWithoutAnEntryInTheLanguage) {
  EXPECT_EQ(stringsFileText({record("Open"), inFrench("Close", "Fermer"), record("Save")}, kFrench),
            "\n/*  */\n\"Close\" = \"Fermer\"\n\n");
}

TEST(StringsFileWriter, WritesAnEntryWhoseTextIsEmpty) {
  EXPECT_EQ(stringsFileText({inFrench("Open", "")}, kFrench), "\n/*  */\n\"Open\" = \"\"\n\n");
}

TEST(StringsFileWriter, KeepsTheOrderOfTheList) {
  EXPECT_EQ(stringsFileText({inFrench("b", "2"), inFrench("a", "1")}, kFrench),
            "\n/*  */\n\"b\" = \"2\"\n\n/*  */\n\"a\" = \"1\"\n\n");
}

TEST(StringsFileWriter, AddsNoEscapeSequences) {
  EXPECT_EQ(stringsFileText({inFrench("Say \\", "\"oui\"\nou \\n\ttab", {"a \"quote\""})}, kFrench),
            "\n/* a \"quote\" */\n\"Say \\\" = \"\"oui\"\nou \\n\ttab\"\n\n");
}

TEST(StringsFileWriter, FillsNothingIntoPercentSignsOfTheTexts) {
  EXPECT_EQ(stringsFileText({inFrench("%@ of %ld", "%ld%% de %@", {"%@"})}, kFrench),
            "\n/* %@ */\n\"%@ of %ld\" = \"%ld%% de %@\"\n\n");
}

}  // namespace
}  // namespace glossmill
