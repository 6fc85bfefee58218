#include <gtest/gtest.h>

#include "edit/UnusedEntries.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"
#include "support/TableRecord.h"

namespace glossmill {
namespace {

std::shared_ptr<Language> languageOf(LanguageCode code) {
  auto language = std::make_shared<Language>();
  language->setIso639(code.text());
  return language;
}

TEST(UnusedEntries, AreThoseOfUnusedRowsInTheChosenLanguages) {
  const auto unused = tableRecord("a", "Ebb");
  unused->tableRow()->isUnused = true;
  const auto used = tableRecord("a", "Tide");
  for (const auto& record : {unused, used}) {
    store(*record, kGerman, "x");
    store(*record, kFrench, "");
  }
  const StringArray records{used, unused, std::make_shared<LocalizeString>()};
  const std::vector<Edit> all = editsOfUnused(records, {languageOf(kGerman), languageOf(kFrench)});
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].record, unused);
  EXPECT_EQ(all[0].before, "x");
  EXPECT_FALSE(all[0].after);
  EXPECT_EQ(all[1].language, kFrench);
  EXPECT_EQ(editsOfUnused(records, {languageOf(kFrench)}).size(), 1U);
}

}  // namespace
}  // namespace glossmill
