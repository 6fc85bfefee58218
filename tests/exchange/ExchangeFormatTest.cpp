#include <gtest/gtest.h>

#include <set>
#include <string>

#include "exchange/ExchangeFormat.h"

namespace glossmill {
namespace {

TEST(ExchangeFormats, HaveNamesOfTheirOwn) {
  std::set<std::string_view> names;
  for (const ExchangeFormat& format : exchangeFormats()) EXPECT_TRUE(names.insert(format.name).second) << format.name;
  EXPECT_FALSE(names.empty());
}

TEST(ExchangeFormats, ReadWhatTheyWrite) {
  const LanguageCode french("fr");
  LocalizeString record;
  record.setName("Open");
  record.setCommentArray({"Menu"});
  LanguagesDict translations;
  translations.set(french, "Ouvrir");
  record.setLanguagesDict(translations);
  for (const ExchangeFormat& format : exchangeFormats()) {
    std::string text(format.start);
    format.write(text, record, 1, french, ExportScope::AllStrings);
    EXPECT_EQ(format.read(text), (ImportTable{{"Open", "Ouvrir"}})) << format.name;
  }
}

TEST(ExchangeFormats, LeaveOutWhatHasAnEntryWhenOnlyTheRestIsWanted) {
  const LanguageCode french("fr");
  LocalizeString record;
  record.setName("Open");
  LanguagesDict translations;
  translations.set(french, "");
  record.setLanguagesDict(translations);
  for (const ExchangeFormat& format : exchangeFormats()) {
    std::string text;
    format.write(text, record, 1, french, ExportScope::Untranslated);
    EXPECT_EQ(text, "") << format.name;
  }
}

TEST(ExchangeFormats, TheFirstIsThePlainTextWithItsFileTypes) {
  const ExchangeFormat& text = exchangeFormats().front();
  EXPECT_EQ(std::vector<std::string>(text.fileTypes.begin(), text.fileTypes.end()),
            (std::vector<std::string>{"txt", "rtf", "TXT", "RTF"}));
}

}  // namespace
}  // namespace glossmill
