#include <gtest/gtest.h>

#include <set>
#include <string>

#include "exchange/ExchangeFormat.h"

namespace glossmill {
namespace {

ExchangeDocument frenchDocument() {
  ExchangeUnit unit;
  unit.number = 1;
  unit.table = "Localizable";
  unit.key = "Open";
  unit.source = "Open";
  unit.comment = "Menu";
  unit.texts = {{0, "Ouvrir"}};
  ExchangeDocument document;
  document.languages = {"fr"};
  document.units = {unit};
  return document;
}

TEST(ExchangeFormats, HaveNamesAndFileTypesOfTheirOwn) {
  std::set<std::string_view> names;
  std::set<std::string_view> types;
  for (const ExchangeFormat& format : exchangeFormats()) {
    EXPECT_TRUE(names.insert(format.name).second) << format.name;
    for (const std::string_view type : format.fileTypes) EXPECT_TRUE(types.insert(type).second) << type;
  }
  EXPECT_FALSE(names.empty());
}

TEST(ExchangeFormats, ReadWhatTheyWrite) {
  for (const ExchangeFormat& format : exchangeFormats()) {
    const WrittenExchange written = format.write(frenchDocument(), {});
    ASSERT_EQ(written.files.size(), 1U) << format.name;
    EXPECT_TRUE(written.leftOut.empty()) << format.name;
    const Result<ExchangeDocument> read = format.read(written.files.front().text);
    ASSERT_TRUE(read) << format.name << read.error().sentence;
    ASSERT_EQ(read.value().units.size(), 1U) << format.name;
    EXPECT_EQ(read.value().units.front().key, "Open") << format.name;
    EXPECT_EQ(read.value().units.front().texts, (std::vector<UnitText>{{0, "Ouvrir"}})) << format.name;
  }
}

TEST(ExchangeFormats, TheFirstIsThePlainTextWithItsFileTypes) {
  const ExchangeFormat& text = exchangeFormats().front();
  EXPECT_EQ(std::vector<std::string>(text.fileTypes.begin(), text.fileTypes.end()),
            (std::vector<std::string>{"txt", "rtf", "TXT", "RTF"}));
}

TEST(ExchangeFormats, AreFoundByNameAndByTheExtensionOfAFile) {
  const auto formats = exchangeFormats();
  EXPECT_EQ(formatNamed(formats, "po")->name, "po");
  EXPECT_EQ(formatNamed(formats, "doc"), nullptr);
  EXPECT_EQ(formatOfFile(formats, FileUrl("/x/App_fr.PO"))->name, "po");
  EXPECT_EQ(formatOfFile(formats, FileUrl("/x/App_fr.csv"))->name, "csv");
  EXPECT_EQ(formatOfFile(formats, FileUrl("/x/App_fr.tab"))->name, "tsv");
  EXPECT_EQ(formatOfFile(formats, FileUrl("/x/App_fr.rtf"))->name, "text");
  EXPECT_EQ(formatOfFile(formats, FileUrl("/x/App_fr")), nullptr);
}

}  // namespace
}  // namespace glossmill
