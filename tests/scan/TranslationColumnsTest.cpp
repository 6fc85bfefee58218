#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/StringListBuilder.h"
#include "scan/TranslationColumns.h"
#include "support/LanguageCodes.h"

namespace glossmill {
namespace {

using Entries = std::vector<StringsFileEntry>;

/// Three strings, numbered 0 to 2.
class TranslationColumnsTest : public testing::Test {
 protected:
  TranslationColumnsTest() { strings.add({{"a", ""}, {"b", ""}, {"c", ""}}, FileUrl("/a.m")); }

  StringsFileEntry entry(KeyIndex::Number key, std::string_view value) { return {key, strings.arena().add(value)}; }

  /// "none" without an entry.
  std::string translation(std::size_t number, LanguageCode code) {
    return std::string(strings.records()[number]->languagesDict().find(code).value_or("none"));
  }

  StringListBuilder strings;
};

TEST_F(TranslationColumnsTest, GivesEachRecordItsTranslations) {
  TranslationColumns columns(strings.records());
  columns.add(kGerman, Entries{entry(2, "c de"), entry(0, "a de")});
  columns.add(kFrench, Entries{entry(0, "a fr")});
  columns.moveIntoRecords();
  EXPECT_EQ(translation(0, kGerman), "a de");
  EXPECT_EQ(translation(0, kFrench), "a fr");
  EXPECT_EQ(translation(1, kGerman), "none");
  EXPECT_EQ(translation(2, kGerman), "c de");
  EXPECT_EQ(translation(2, kFrench), "none");
  EXPECT_EQ(strings.records()[0]->languagesDict().count(), 2U);
  EXPECT_EQ(strings.records()[1]->languagesDict().count(), 0U);
}

TEST_F(TranslationColumnsTest, GivesNothingBeforeItIsTold) {
  TranslationColumns columns(strings.records());
  columns.add(kGerman, Entries{entry(0, "a de")});
  EXPECT_EQ(translation(0, kGerman), "none");
}

TEST_F(TranslationColumnsTest, TakesTheLaterEntryOfAKey) {
  TranslationColumns columns(strings.records());
  columns.add(kGerman, Entries{entry(0, "first"), entry(1, "b"), entry(0, "second")});
  columns.moveIntoRecords();
  EXPECT_EQ(translation(0, kGerman), "second");
  EXPECT_EQ(strings.records()[0]->languagesDict().count(), 1U);
}

TEST_F(TranslationColumnsTest, TakesAnEmptyTextForATranslation) {
  TranslationColumns columns(strings.records());
  columns.add(kGerman, Entries{entry(0, "")});
  columns.moveIntoRecords();
  EXPECT_EQ(translation(0, kGerman), "");
}

TEST_F(TranslationColumnsTest, LeavesRecordsWithoutEntriesAlone) {
  TranslationColumns columns(strings.records());
  columns.add(kGerman, {});
  columns.moveIntoRecords();
  TranslationColumns(strings.records()).moveIntoRecords();
  EXPECT_EQ(translation(0, kGerman), "none");
  EXPECT_EQ(strings.records()[0]->languagesDict().count(), 0U);
}

TEST_F(TranslationColumnsTest, GivesManyRecordsTheirTranslations) {
  constexpr KeyIndex::Number kRecords = 10'000;
  for (KeyIndex::Number number = 3; number < kRecords; ++number) {
    const std::string key = std::to_string(number);
    strings.add({{key, ""}}, FileUrl("/b.m"));
  }
  Entries german;
  for (KeyIndex::Number number = kRecords; number-- > 0;) german.push_back(entry(number, std::to_string(number)));
  TranslationColumns columns(strings.records());
  columns.add(kGerman, german);
  columns.add(kFrench, Entries{entry(9'999, "last"), entry(5'000, "middle")});
  columns.moveIntoRecords();
  for (KeyIndex::Number number = 0; number < kRecords; ++number) {
    ASSERT_EQ(translation(number, kGerman), std::to_string(number));
    const bool isFrench = number == 5'000 || number == 9'999;
    ASSERT_EQ(strings.records()[number]->languagesDict().count(), isFrench ? 2U : 1U) << number;
  }
  EXPECT_EQ(translation(5'000, kFrench), "middle");
  EXPECT_EQ(translation(9'999, kFrench), "last");
}

}  // namespace
}  // namespace glossmill
