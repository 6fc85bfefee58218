#include <gtest/gtest.h>

#include "exchange/SeparatedText.h"
#include "exchange/SheetReader.h"
#include "exchange/SheetWriter.h"
#include "support/RandomUnits.h"
#include "support/ReturnedTexts.h"

namespace glossmill {
namespace {

ExchangeUnit boat(std::string_view key, std::vector<UnitText> texts) {
  ExchangeUnit unit;
  unit.table = "app/Boats";
  unit.key = key;
  unit.source = "Boat";
  unit.comment = "Menu";
  unit.texts = std::move(texts);
  return unit;
}

ExchangeDocument boats(std::vector<ExchangeUnit> units) {
  ExchangeDocument document;
  document.languages = {"de", "fr"};
  document.units = std::move(units);
  return document;
}

std::string csvOf(std::vector<ExchangeUnit> units, bool hasMark = false) {
  return csvText(boats(std::move(units)), {hasMark, ""}).files.front().text;
}

std::string firstError(const Result<ExchangeDocument>& read) {
  return read ? "none" : read.error().sentence;
}

TEST(Sheet, HasAColumnForEachLanguageAndARowForEachString) {
  EXPECT_EQ(csvOf({boat("boat", {{0, "Boot"}, {1, "bateau"}}), boat("b", {{1, "x"}})}),
            "table,key,source,comment,de,fr\r\n"
            "app/Boats,boat,Boat,Menu,Boot,bateau\r\n"
            "app/Boats,b,Boat,Menu,,x\r\n");
}

TEST(Sheet, BeginsWithAMarkWhenItIsToldTo) {
  EXPECT_EQ(csvOf({}, true), "\xEF\xBB\xBFtable,key,source,comment,de,fr\r\n");
}

TEST(Sheet, QuotesWhatWouldEndACellAndKeepsSpreadsheetsFromCalculating) {
  const std::string text = csvOf({boat("a,b", {{0, "=1+1"}, {1, "say \"x\"\nnow"}})});
  EXPECT_NE(text.find("\"a,b\",Boat,Menu,'=1+1,\"say \"\"x\"\"\nnow\"\r\n"), text.npos) << text;
  const auto read = readCsv(text);
  ASSERT_TRUE(read);
  EXPECT_EQ(read.value().units.front().texts, (std::vector<UnitText>{{0, "=1+1"}, {1, "say \"x\"\nnow"}}));
}

TEST(Sheet, EveryCellThatASpreadsheetWouldCalculateHasAnApostropheAndLosesItAgain) {
  for (const std::string cell : {"=1", "+1", "-1", "@x", "\tx", "\rx", "'=1", "''@", "'x", "x=1", "'"}) {
    std::string text;
    appendCell(text, cell, ',');
    const std::string_view inside = text.front() == '"' ? std::string_view(text).substr(1) : text;
    EXPECT_EQ(std::string_view("=+-@\t\r").find(inside.front()), std::string_view::npos) << text;
    const auto row = SeparatedReader(text, ',').takeRow();
    ASSERT_TRUE(row);
    EXPECT_EQ(withoutGuard(row.value().cells.front()), cell);
  }
}

TEST(Sheet, ReadsColumnsInAnyOrderAndRowsThatAreShort) {
  const auto read = readCsv("de,key\nBoot,boat\n\nSegel\nRuder,oar");
  ASSERT_TRUE(read);
  EXPECT_EQ(read.value().languages, (std::vector<std::string>{"de"}));
  ASSERT_EQ(read.value().units.size(), 3U);
  EXPECT_EQ(read.value().units[0].key, "boat");
  EXPECT_EQ(read.value().units[0].line, 2U);
  EXPECT_EQ(read.value().units[1].key, "");
  EXPECT_EQ(read.value().units[2].texts, (std::vector<UnitText>{{0, "Ruder"}}));
  EXPECT_EQ(read.value().units[2].line, 5U);
}

TEST(Sheet, ReadsSemicolonsAndTabsAsTheFirstRowShows) {
  for (const char* text : {"key;de\r\na,b;c", "key\tde\r\na,b\tc"}) {
    const auto read = readCsv(text);
    ASSERT_TRUE(read);
    EXPECT_EQ(read.value().units.front().key, "a,b");
    EXPECT_EQ(read.value().units.front().texts.front().text, "c");
  }
}

TEST(Sheet, RejectsARowWithTooManyCells) {
  const auto read = readCsv("key,de\na,b,c\nd,e\n");
  ASSERT_TRUE(read);
  EXPECT_EQ(read.value().units.size(), 1U);
  EXPECT_EQ(read.value().rejected, (std::vector<RejectedLine>{{2, "The row has more cells than the first one."}}));
}

TEST(Sheet, SaysWhatIsWrongAndWhere) {
  EXPECT_EQ(firstError(readCsv("")), "line 1: No column is named “key”.");
  EXPECT_EQ(firstError(readCsv("a,b\nc,d\n")), "line 1: No column is named “key”.");
  EXPECT_EQ(firstError(readCsv("key,de\na,b\nc,\"d\n")), "line 3: The quote of a cell is not closed.");
  EXPECT_EQ(firstError(readCsv("key,de\na,\"b\nb\"c\n")),
            "line 3: Something stands behind the closing quote of a cell.");
}

TEST(Sheet, LeavesOutWhatHoldsANulAndSaysSo) {
  const WrittenExchange written = csvText(boats({boat(std::string_view("a\0b", 3), {})}), {});
  ASSERT_EQ(written.leftOut.size(), 1U);
  EXPECT_EQ(written.leftOut.front().sentence, "It holds U+0000, which the format cannot carry.");
  EXPECT_EQ(written.files.front().text.find('b', 40), std::string::npos);
}

TEST(Sheet, EveryTextOfUnicodeComesBackAsItWas) {
  for (const char* name : {"csv", "tsv"}) {
    const ExchangeFormat& format = *formatNamed(exchangeFormats(), name);
    for (unsigned seed = 1; seed <= 300; ++seed) expectReturn(format, randomDocument(seed));
  }
}

}  // namespace
}  // namespace glossmill
