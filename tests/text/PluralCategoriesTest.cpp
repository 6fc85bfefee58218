#include <gtest/gtest.h>

#include "text/PluralCategories.h"

namespace glossmill {
namespace {

using Categories = std::vector<std::string_view>;

TEST(PluralCategories, AreThoseThatWholeNumbersHaveAndOther) {
  EXPECT_EQ(pluralCategories("en"), (Categories{"one", "other"}));
  EXPECT_EQ(pluralCategories("ja"), (Categories{"other"}));
  EXPECT_EQ(pluralCategories("ru"), (Categories{"one", "few", "many", "other"}));
  EXPECT_EQ(pluralCategories("cs"), (Categories{"one", "few", "other"}));
  EXPECT_EQ(pluralCategories("sl"), (Categories{"one", "two", "few", "other"}));
  EXPECT_EQ(pluralCategories("lv"), (Categories{"zero", "one", "other"}));
  EXPECT_EQ(pluralCategories("ar"), (Categories{"zero", "one", "two", "few", "many", "other"}));
  EXPECT_EQ(pluralCategories("fr"), (Categories{"one", "other"}));
}

TEST(PluralCategories, OfALanguageCountForItsScriptsAndRegions) {
  EXPECT_EQ(pluralCategories("zh-Hant"), (Categories{"other"}));
  EXPECT_EQ(pluralCategories("pt_BR"), (Categories{"one", "other"}));
  EXPECT_EQ(pluralCategories("sr-Latn-RS"), (Categories{"one", "few", "other"}));
}

TEST(PluralCategories, OfAnUnknownLanguageAreNone) {
  EXPECT_TRUE(pluralCategories("tlh").empty());
  EXPECT_TRUE(pluralCategories("Base").empty());
  EXPECT_TRUE(pluralCategories("").empty());
  EXPECT_TRUE(mayHavePluralCategory("tlh", "two"));
}

TEST(PluralCategories, ZeroAndARareManyMayStandWhereNobodyNeedsThem) {
  EXPECT_TRUE(mayHavePluralCategory("en", "zero"));
  EXPECT_TRUE(mayHavePluralCategory("fr-CA", "many"));
  EXPECT_TRUE(mayHavePluralCategory("cs", "many"));
  EXPECT_FALSE(mayHavePluralCategory("en", "few"));
  EXPECT_FALSE(mayHavePluralCategory("ja", "one"));
  EXPECT_FALSE(mayHavePluralCategory("de", "many"));
}

TEST(PluralCategories, AreKnownByTheirNames) {
  for (const char* const name : {"zero", "one", "two", "few", "many", "other"}) EXPECT_TRUE(isPluralCategory(name));
  EXPECT_FALSE(isPluralCategory("mac"));
  EXPECT_FALSE(isPluralCategory(""));
}

}  // namespace
}  // namespace glossmill
