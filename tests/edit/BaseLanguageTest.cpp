#include <gtest/gtest.h>

#include "edit/BaseLanguage.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"
#include "support/TableRecord.h"

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

TEST(BaseLanguage, ARowOfATableGetsItsSourceTextWhereATranslationIsWanted) {
  TextArena arena;
  const auto record = tableRecord("a", "OPEN");
  EXPECT_FALSE(fillFromKey(record, kFrench));
  record->tableRow()->sourceText = arena.add("Open");
  ASSERT_TRUE(fillFromKey(record, kFrench));
  EXPECT_EQ(fillFromKey(record, kFrench)->after, "Open");
  record->tableRow()->isWanted = false;
  EXPECT_FALSE(fillFromKey(record, kFrench));
  record->tableRow()->isWanted = true;
  record->tableRow()->isUnused = true;
  EXPECT_FALSE(fillFromKey(record, kFrench));
  record->tableRow()->isUnused = false;
  record->tableRow()->sourceText = arena.add("");
  EXPECT_FALSE(fillFromKey(record, kFrench));
}

TEST(BaseLanguage, ChangesNothingItself) {
  const auto record = openRecord();
  EXPECT_TRUE(fillFromKey(record, kFrench));
  EXPECT_EQ(record->languagesDict().count(), 0U);
}

}  // namespace
}  // namespace glossmill
