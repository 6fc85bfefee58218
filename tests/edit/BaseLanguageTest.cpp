#include <gtest/gtest.h>

#include "edit/BaseLanguage.h"
#include "support/LanguageCodes.h"

namespace glossmill {
namespace {

LocalizeString openRecord() {
  LocalizeString record;
  record.setName("Open");
  return record;
}

TEST(BaseLanguage, GivesARecordWithoutAnEntryItsKey) {
  LocalizeString record = openRecord();
  EXPECT_TRUE(fillFromKey(record, kFrench));
  EXPECT_EQ(record.languagesDict().find(kFrench), "Open");
  EXPECT_EQ(record.languagesDict().count(), 1U);
}

TEST(BaseLanguage, NeverOverwritesATranslation) {
  LocalizeString record = openRecord();
  record.languagesDict().set(kFrench, "Ouvrir");
  EXPECT_FALSE(fillFromKey(record, kFrench));
  EXPECT_EQ(record.languagesDict().find(kFrench), "Ouvrir");
}

TEST(BaseLanguage, NeverOverwritesEvenAnEmptyEntry) {
  LocalizeString record = openRecord();
  record.languagesDict().set(kFrench, "");
  EXPECT_FALSE(fillFromKey(record, kFrench));
  EXPECT_EQ(record.languagesDict().find(kFrench), "");
}

TEST(BaseLanguage, LeavesTheOtherLanguagesAlone) {
  LocalizeString record = openRecord();
  record.languagesDict().set(LanguageCode("de"), "Öffnen");
  EXPECT_TRUE(fillFromKey(record, kFrench));
  EXPECT_EQ(record.languagesDict().find(LanguageCode("de")), "Öffnen");
}

}  // namespace
}  // namespace glossmill
