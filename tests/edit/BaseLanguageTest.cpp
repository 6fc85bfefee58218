#include <gtest/gtest.h>

#include "edit/BaseLanguage.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

std::shared_ptr<LocalizeString> openRecord() {
  auto record = std::make_shared<LocalizeString>();
  record->setName("Open");
  return record;
}

TEST(BaseLanguage, GivesARecordWithoutAnEntryItsKey) {
  const auto record = openRecord();
  store(*record, kGerman, "Öffnen");
  const std::optional<Edit> edit = fillFromKey(record, kFrench);
  ASSERT_TRUE(edit);
  EXPECT_EQ(edit->record, record);
  EXPECT_EQ(edit->language, kFrench);
  EXPECT_EQ(edit->before, std::nullopt);
  EXPECT_EQ(edit->after, "Open");
}

TEST(BaseLanguage, NeverOverwritesATranslation) {
  const auto record = openRecord();
  store(*record, kFrench, "Ouvrir");
  EXPECT_FALSE(fillFromKey(record, kFrench));
}

TEST(BaseLanguage, NeverOverwritesEvenAnEmptyEntry) {
  const auto record = openRecord();
  store(*record, kFrench, "");
  EXPECT_FALSE(fillFromKey(record, kFrench));
}

TEST(BaseLanguage, ChangesNothingItself) {
  const auto record = openRecord();
  EXPECT_TRUE(fillFromKey(record, kFrench));
  EXPECT_EQ(record->languagesDict().count(), 0U);
}

}  // namespace
}  // namespace glossmill
