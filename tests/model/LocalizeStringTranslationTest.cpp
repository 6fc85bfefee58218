#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/FakeProjectContext.h"
#include "model/Language.h"
#include "model/LocalizeString.h"
#include "support/LanguageCodes.h"

namespace glossmill {
namespace {

std::shared_ptr<Language> languageOf(LanguageCode code) {
  auto language = std::make_shared<Language>();
  language->setIso639(code.text());
  return language;
}

class LocalizeStringTranslationTest : public testing::Test {
 protected:
  void SetUp() override { project.select(record, languageOf(kGerman)); }

  std::string translation() const { return record->translationForSelectedString(&project); }
  void setTranslation(std::string_view text) { record->setTranslationForSelectedString(text, &project); }

  void expectNothingPosted() {
    EXPECT_TRUE(project.center().posts().empty());
    EXPECT_TRUE(project.countChanges().empty());
  }
  void expectOnePost(int difference) {
    ASSERT_EQ(project.center().posts().size(), 1U);
    EXPECT_EQ(project.center().posts()[0].name, "GlossmillTranslationChanged");
    EXPECT_EQ(project.center().posts()[0].object, record.get());
    ASSERT_EQ(project.countChanges().size(), 1U);
    EXPECT_EQ(project.countChanges()[0].code, kGerman);
    EXPECT_EQ(project.countChanges()[0].difference, difference);
  }

  FakeProjectContext project{2};
  std::shared_ptr<LocalizeString> record = std::make_shared<LocalizeString>();
};

TEST_F(LocalizeStringTranslationTest, IsThatOfTheSelectedLanguage) {
  record->languagesDict().set(kGerman, "Öffnen");
  record->languagesDict().set(kFrench, "Ouvrir");
  EXPECT_EQ(translation(), "Öffnen");
  project.select(record, languageOf(kFrench));
  EXPECT_EQ(translation(), "Ouvrir");
}

TEST_F(LocalizeStringTranslationTest, IsEmptyWithoutAnEntry) {
  record->languagesDict().set(kFrench, "Ouvrir");
  EXPECT_EQ(translation(), "");
}

TEST_F(LocalizeStringTranslationTest, IsEmptyForAnEmptyEntryThatStaysPresent) {
  record->languagesDict().set(kGerman, "");
  EXPECT_EQ(translation(), "");
  EXPECT_EQ(record->languagesDict().count(), 1U);
}

TEST_F(LocalizeStringTranslationTest, IsEmptyWithoutASelectionOrAProject) {
  record->languagesDict().set(kGerman, "Öffnen");
  EXPECT_EQ(record->translationForSelectedString(nullptr), "");
  project.select(nullptr, languageOf(kGerman));
  EXPECT_EQ(translation(), "");
  project.select(record, nullptr);
  EXPECT_EQ(translation(), "");
}

TEST_F(LocalizeStringTranslationTest, IsThatOfTheSelectedRecordWhicheverRecordIsAsked) {
  record->languagesDict().set(kGerman, "Öffnen");
  LocalizeString other;
  other.languagesDict().set(kGerman, "Schließen");
  EXPECT_EQ(other.translationForSelectedString(&project), "Öffnen");
}

TEST_F(LocalizeStringTranslationTest, SetOnAnotherRecordGoesToTheSelectedOne) {
  LocalizeString other;
  other.setTranslationForSelectedString("Öffnen", &project);
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  EXPECT_EQ(other.languagesDict().count(), 0U);
  expectOnePost(1);
}

TEST_F(LocalizeStringTranslationTest, PostsOnceWhenItIsTheFirst) {
  setTranslation("Öffnen");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  EXPECT_EQ(record->languagesDict().count(), 1U);
  expectOnePost(1);
}

TEST_F(LocalizeStringTranslationTest, PostsOnceAndLosesItsEntryWhenItIsCleared) {
  record->languagesDict().set(kGerman, "Öffnen");
  record->languagesDict().set(kFrench, "Ouvrir");
  setTranslation("");
  EXPECT_FALSE(record->languagesDict().contains(kGerman));
  EXPECT_EQ(record->languagesDict().find(kFrench), "Ouvrir");
  expectOnePost(-1);
}

TEST_F(LocalizeStringTranslationTest, PostsNothingWhenAnEmptyOneIsSetWhereThereIsNone) {
  setTranslation("");
  EXPECT_EQ(record->languagesDict().count(), 0U);
  expectNothingPosted();
}

TEST_F(LocalizeStringTranslationTest, PostsNothingWhenOneTextReplacesAnother) {
  record->languagesDict().set(kGerman, "Auf");
  setTranslation("Öffnen");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  expectNothingPosted();
}

TEST_F(LocalizeStringTranslationTest, PostsNothingWhenItsOwnTextIsSetAgain) {
  record->languagesDict().set(kGerman, "Öffnen");
  setTranslation(*record->languagesDict().find(kGerman));
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  expectNothingPosted();
}

TEST_F(LocalizeStringTranslationTest, PostsNothingWhenATextReplacesAnEmptyEntry) {
  record->languagesDict().set(kGerman, "");
  setTranslation("Öffnen");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  expectNothingPosted();
}

TEST_F(LocalizeStringTranslationTest, RemovesAnEmptyEntryWhenAnEmptyOneIsSet) {
  record->languagesDict().set(kGerman, "");
  setTranslation("");
  EXPECT_FALSE(record->languagesDict().contains(kGerman));
  expectOnePost(-1);
}

TEST_F(LocalizeStringTranslationTest, StaysWithoutASelectionOrAProject) {
  record->languagesDict().set(kGerman, "Öffnen");
  record->setTranslationForSelectedString("Auf", nullptr);
  project.select(nullptr, languageOf(kGerman));
  setTranslation("Auf");
  setTranslation("");
  project.select(record, nullptr);
  setTranslation("Auf");
  setTranslation("");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  EXPECT_EQ(record->languagesDict().count(), 1U);
  expectNothingPosted();
}

TEST_F(LocalizeStringTranslationTest, IsStoredAndCountedWhenTheNotificationComes) {
  std::vector<std::string> seen;
  project.center().addObserver(this, kTranslationChangedNotification, [&](const void* object) {
    EXPECT_EQ(object, record.get());
    seen.push_back(translation() + ", counts " + std::to_string(project.countChanges().size()));
  });
  setTranslation("Öffnen");
  setTranslation("");
  EXPECT_EQ(seen, (std::vector<std::string>{"Öffnen, counts 1", ", counts 2"}));
}

TEST_F(LocalizeStringTranslationTest, IsRawText) {
  setTranslation("Sag \\\"Hallo\\\"\\n\n");
  EXPECT_EQ(translation(), "Sag \\\"Hallo\\\"\\n\n");
}

}  // namespace
}  // namespace glossmill
