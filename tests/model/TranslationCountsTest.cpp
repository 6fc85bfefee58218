#include <gtest/gtest.h>

#include <memory>

#include "model/TranslationCounts.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

StringArray threeRecords() {
  StringArray records;
  for (int i = 0; i < 3; ++i) records.push_back(std::make_shared<LocalizeString>());
  return records;
}

TEST(TranslationCounts, FindNothingMissingWithoutRecords) {
  EXPECT_EQ(TranslationCounts().missing(kGerman, {}), 0U);
}

TEST(TranslationCounts, FindEveryRecordMissingInALanguageThatNoneHas) {
  EXPECT_EQ(TranslationCounts().missing(LanguageCode("a language that nobody speaks"), threeRecords()), 3U);
}

TEST(TranslationCounts, CountTheRecordsThatLackALanguage) {
  const StringArray records = threeRecords();
  store(*records[0], kGerman, "Öffnen");
  store(*records[2], kGerman, "");
  store(*records[1], kFrench, "Fermer");
  TranslationCounts counts;
  EXPECT_EQ(counts.missing(kGerman, records), 1U);
  EXPECT_EQ(counts.missing(kFrench, records), 2U);
}

TEST(TranslationCounts, FollowASingleEdit) {
  const StringArray records = threeRecords();
  TranslationCounts counts;
  EXPECT_EQ(counts.missing(kGerman, records), 3U);
  counts.adjust({records[0], kGerman, std::nullopt, "Öffnen"});
  EXPECT_EQ(counts.missing(kGerman, records), 2U);
  counts.adjust({records[0], kGerman, "Öffnen", std::nullopt});
  EXPECT_EQ(counts.missing(kGerman, records), 3U);
}

TEST(TranslationCounts, FollowAnEditInALanguageThatWasNotThereBefore) {
  const StringArray records = threeRecords();
  TranslationCounts counts;
  EXPECT_EQ(counts.missing(kGerman, records), 3U);
  const LanguageCode added("a language that was just added");
  counts.adjust({records[0], added, std::nullopt, "Öffnen"});
  EXPECT_EQ(counts.missing(added, records), 2U);
}

TEST(TranslationCounts, CountAnEditBeforeTheFirstQuestionOnce) {
  const StringArray records = threeRecords();
  store(*records[0], kGerman, "Öffnen");
  TranslationCounts counts;
  counts.adjust({records[0], kGerman, std::nullopt, "Öffnen"});
  EXPECT_EQ(counts.missing(kGerman, records), 2U);
}

TEST(TranslationCounts, CountAnewAfterALargerChange) {
  StringArray records = threeRecords();
  store(*records[0], kGerman, "Öffnen");
  TranslationCounts counts;
  EXPECT_EQ(counts.missing(kGerman, records), 2U);
  for (const auto& record : records) store(*record, kGerman, "Öffnen");
  records.push_back(std::make_shared<LocalizeString>());
  counts.invalidate();
  EXPECT_EQ(counts.missing(kGerman, records), 1U);
}

std::shared_ptr<LocalizeString> tableRecord(bool isWanted) {
  auto record = std::make_shared<LocalizeString>();
  auto row = std::make_unique<TableRow>();
  row->isWanted = isWanted;
  record->setTableRow(std::move(row));
  return record;
}

TEST(TranslationCounts, OfTablesAnEmptyTextIsMissing) {
  const StringArray records{tableRecord(true), tableRecord(true)};
  store(*records[0], kGerman, "");
  TranslationCounts counts;
  EXPECT_EQ(counts.missing(kGerman, records), 2U);
  counts.adjust({records[0], kGerman, "", "Öffnen"});
  EXPECT_EQ(counts.missing(kGerman, records), 1U);
  counts.adjust({records[0], kGerman, "Öffnen", "Auf"});
  EXPECT_EQ(counts.missing(kGerman, records), 1U);
  counts.adjust({records[0], kGerman, "Auf", ""});
  EXPECT_EQ(counts.missing(kGerman, records), 2U);
}

TEST(TranslationCounts, OfTablesOnlyWhatIsWantedIsMissing) {
  const StringArray records{tableRecord(false), tableRecord(true)};
  TranslationCounts counts;
  EXPECT_EQ(counts.missing(kGerman, records), 1U);
  counts.adjust({records[0], kGerman, std::nullopt, "Öffnen"});
  EXPECT_EQ(counts.missing(kGerman, records), 1U);
}

}  // namespace
}  // namespace glossmill
