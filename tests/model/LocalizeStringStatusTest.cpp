#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>

#include "model/FakeBundle.h"
#include "model/FakeProjectContext.h"
#include "model/LocalizeString.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

LocalizeString translatedInto(std::initializer_list<LanguageCode> codes) {
  LocalizeString record;
  for (const LanguageCode code : codes) store(record, code, "text");
  return record;
}

class LocalizeStringStatusTest : public testing::Test {
 protected:
  const StatusTexts texts{FakeBundle()};
  FakeProjectContext project;
};

TEST_F(LocalizeStringStatusTest, OfANewRecordIsThatEveryLanguageIsMissing) {
  const LocalizeString record;
  for (const std::int64_t languages : {1, 2, 40}) {
    project.setTotalLanguages(languages);
    EXPECT_EQ(record.status(&project), Status::Incomplete);
    EXPECT_EQ(record.statusString(texts, &project), std::to_string(languages) + " missing");
  }
}

TEST_F(LocalizeStringStatusTest, IsIncompleteWithoutAProject) {
  EXPECT_EQ(LocalizeString().status(nullptr), Status::Incomplete);
  EXPECT_EQ(LocalizeString().statusString(texts, nullptr), "Incomplete");
  EXPECT_EQ(translatedInto({kGerman}).status(nullptr), Status::Incomplete);
  EXPECT_EQ(translatedInto({kGerman}).statusString(texts, nullptr), "Incomplete");
}

TEST_F(LocalizeStringStatusTest, IsCompleteInAProjectWithoutLanguages) {
  EXPECT_EQ(LocalizeString().status(&project), Status::Complete);
  EXPECT_EQ(LocalizeString().statusString(texts, &project), "Complete");
}

TEST_F(LocalizeStringStatusTest, IsCompleteWithOneTranslationForEachLanguage) {
  project.setTotalLanguages(2);
  EXPECT_EQ(translatedInto({kGerman, kFrench}).status(&project), Status::Complete);
  EXPECT_EQ(translatedInto({kGerman, kFrench}).statusString(texts, &project), "Complete");
}

TEST_F(LocalizeStringStatusTest, CountsWhatIsMissing) {
  project.setTotalLanguages(3);
  EXPECT_EQ(translatedInto({kGerman}).status(&project), Status::Incomplete);
  EXPECT_EQ(translatedInto({kGerman}).statusString(texts, &project), "2 missing");
}

TEST_F(LocalizeStringStatusTest, IsIncompleteWithATranslationTooMany) {
  project.setTotalLanguages(1);
  EXPECT_EQ(translatedInto({kGerman, kFrench}).status(&project), Status::Incomplete);
  EXPECT_EQ(translatedInto({kGerman, kFrench}).statusString(texts, &project), "-1 missing");
}

TEST_F(LocalizeStringStatusTest, CountsAnEmptyTranslationAsPresent) {
  project.setTotalLanguages(1);
  LocalizeString record;
  store(record, kGerman, "");
  EXPECT_EQ(record.status(&project), Status::Complete);
  EXPECT_EQ(record.statusString(texts, &project), "Complete");
}

TEST_F(LocalizeStringStatusTest, IsInTheLanguageOfTheUser) {
  const StatusTexts german{germanBundle()};
  project.setTotalLanguages(1);
  EXPECT_EQ(LocalizeString().statusString(german, &project), "Es fehlen 1");
  EXPECT_EQ(translatedInto({kGerman}).statusString(german, &project), "Vollständig");
}

}  // namespace
}  // namespace glossmill
