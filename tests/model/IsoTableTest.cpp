#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "model/IsoTable.h"

namespace glossmill {
namespace {

using Names = std::map<std::string, std::string, std::less<>>;
using Codes = std::vector<std::string>;

IsoTable tableFrom(std::string_view csv) {
  const Result<IsoTable> table = IsoTable::fromCsv(csv);
  EXPECT_TRUE(table.ok());
  return table ? table.value() : IsoTable();
}

TEST(IsoTable, StoresANameUnderBothCodes) {
  EXPECT_EQ(tableFrom("deu;de;German\r").all(), (Names{{"deu", "German"}, {"de", "German"}}));
}

TEST(IsoTable, StoresANameUnderTheOnlyCode) {
  EXPECT_EQ(tableFrom("ast;;Asturian\r").all(), (Names{{"ast", "Asturian"}}));
  EXPECT_EQ(tableFrom(";en;English\r").all(), (Names{{"en", "English"}}));
}

TEST(IsoTable, ReadsALastRecordWithoutACarriageReturn) {
  EXPECT_EQ(tableFrom("ast;;Asturian\rach;;Acoli").all(), (Names{{"ast", "Asturian"}, {"ach", "Acoli"}}));
}

TEST(IsoTable, SkipsARecordOfTwoFields) {
  EXPECT_EQ(tableFrom("deu;de\rast;;Asturian\r").all(), (Names{{"ast", "Asturian"}}));
}

TEST(IsoTable, SkipsARecordWithoutAName) {
  EXPECT_EQ(tableFrom("deu;de;\rast;;Asturian\rfra;fr;;French\r").all(), (Names{{"ast", "Asturian"}}));
}

TEST(IsoTable, LosesThreeLetterCodesAfterTheFirstRecordWhenLineFeedsFollowTheCarriageReturns) {
  EXPECT_EQ(tableFrom("deu;de;German\r\nfra;fr;French\r\nita;it;Italian\r\n").all(),
            (Names{{"deu", "German"}, {"de", "German"}, {"fr", "French"}, {"it", "Italian"}}));
}

TEST(IsoTable, TakesLineFeedsAloneForPartOfTheRecord) {
  EXPECT_EQ(tableFrom("deu;de;German\nfra;fr;French\n").all(), (Names{{"deu", "German\nfra"}, {"de", "German\nfra"}}));
}

TEST(IsoTable, StoresOnlyCodesOfTheRightLength) {
  EXPECT_EQ(tableFrom("de;deu;German\r").all(), Names());
  EXPECT_EQ(tableFrom("deut;d;German\r").all(), Names());
}

TEST(IsoTable, TrimsNothing) {
  EXPECT_EQ(tableFrom(" deu; de; German\r").all(), Names());
  EXPECT_EQ(tableFrom(" de; d; German \r").all(), (Names{{" de", " German "}, {" d", " German "}}));
}

TEST(IsoTable, IgnoresFieldsAfterTheName) {
  EXPECT_EQ(tableFrom("deu;de;German;allemand;Deutsch\r").all(), (Names{{"deu", "German"}, {"de", "German"}}));
}

TEST(IsoTable, ReplacesANameByThatOfALaterRecord) {
  EXPECT_EQ(tableFrom("deu;de;German\rdeu;;High German\r").all(), (Names{{"deu", "High German"}, {"de", "German"}}));
}

TEST(IsoTable, IsEmptyForAnEmptyFile) {
  EXPECT_EQ(tableFrom("").all(), Names());
  EXPECT_EQ(IsoTable().all(), Names());
}

TEST(IsoTable, RefusesWhatIsNotAscii) {
  for (const char* csv : {"nob;nb;Bokm\xC3\xA5l\r", "nob;nb;Bokm\xE5l\r",
                          "\xEF\xBB\xBF"
                          "deu;de;German\r",
                          "\x80"}) {
    const Result<IsoTable> table = IsoTable::fromCsv(csv);
    ASSERT_FALSE(table.ok()) << csv;
    EXPECT_EQ(table.error().sentence, "The table of languages holds characters that are not 7-bit ASCII.");
  }
}

TEST(IsoTable, TakesTheLastAsciiCharacter) {
  EXPECT_EQ(tableFrom("deu;;\x7F\r").all(), (Names{{"deu", "\x7F"}}));
}

TEST(IsoTable, NamesACode) {
  const IsoTable table = tableFrom("deu;de;German\r");
  EXPECT_EQ(table.nameOf("deu"), "German");
  EXPECT_EQ(table.nameOf("de"), "German");
}

TEST(IsoTable, HasNoNameForAnUnknownCode) {
  const IsoTable table = tableFrom("deu;de;German\r");
  EXPECT_EQ(table.nameOf("fr"), std::nullopt);
  EXPECT_EQ(table.nameOf("DE"), std::nullopt);
  EXPECT_EQ(table.nameOf(""), std::nullopt);
}

TEST(IsoTable, GivesLongerCodesOfANameFirst) {
  const IsoTable table = tableFrom("deu;de;German\reng;en;English\r");
  EXPECT_EQ(table.codesOf("English"), (Codes{"eng", "en"}));
  EXPECT_EQ(table.codesOf("German"), (Codes{"deu", "de"}));
}

TEST(IsoTable, GivesEveryCodeOfAName) {
  const IsoTable table = tableFrom("aaa;bb;Same\rccc;aa;Same\r");
  EXPECT_EQ(table.codesOf("Same"), (Codes{"aaa", "ccc", "aa", "bb"}));
}

TEST(IsoTable, GivesNoCodeForAnUnknownName) {
  const IsoTable table = tableFrom("deu;de;German\r");
  EXPECT_EQ(table.codesOf("german"), Codes());
  EXPECT_EQ(table.codesOf("Ger"), Codes());
  EXPECT_EQ(table.codesOf("de"), Codes());
}

}  // namespace
}  // namespace glossmill
