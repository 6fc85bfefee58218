#include <gtest/gtest.h>

#include "model/FakeBundle.h"
#include "model/StatusTexts.h"

namespace glossmill {
namespace {

TEST(StatusTexts, AreTheKeysWithoutATranslation) {
  const StatusTexts texts{FakeBundle()};
  EXPECT_EQ(texts.incompleteString, "Incomplete");
  EXPECT_EQ(texts.completeString, "Complete");
  EXPECT_EQ(texts.automaticString, "Automatic");
  EXPECT_EQ(texts.ignoredString, "Ignored");
  EXPECT_EQ(texts.missingString(3), "3 missing");
}

TEST(StatusTexts, AreInTheLanguageOfTheUser) {
  const StatusTexts texts{germanBundle()};
  EXPECT_EQ(texts.incompleteString, "Unvollständig");
  EXPECT_EQ(texts.completeString, "Vollständig");
  EXPECT_EQ(texts.automaticString, "Automatisch");
  EXPECT_EQ(texts.ignoredString, "Ignoriert");
}

TEST(StatusTexts, BelongToTheStatuses) {
  const StatusTexts texts{FakeBundle()};
  EXPECT_EQ(texts.textOf(Status::Incomplete), "Incomplete");
  EXPECT_EQ(texts.textOf(Status::Complete), "Complete");
  EXPECT_EQ(texts.textOf(Status::Automatic), "Automatic");
  EXPECT_EQ(texts.textOf(Status::Ignored), "Ignored");
}

TEST(StatusTexts, FillTheTranslatedCountOfWhatIsMissing) {
  EXPECT_EQ(StatusTexts{germanBundle()}.missingString(12), "Es fehlen 12");
}

TEST(StatusTexts, CountBelowZero) {
  EXPECT_EQ(StatusTexts{FakeBundle()}.missingString(-1), "-1 missing");
}

}  // namespace
}  // namespace glossmill
