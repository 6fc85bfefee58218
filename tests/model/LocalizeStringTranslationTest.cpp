#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "model/FakeProjectContext.h"
#include "model/Language.h"
#include "model/LocalizeString.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

std::shared_ptr<Language> languageOf(LanguageCode code) {
  auto language = std::make_shared<Language>();
  language->setIso639(code.text());
  return language;
}

class LocalizeStringTranslationTest : public testing::Test {
 protected:
  using Text = std::optional<std::string>;

  void SetUp() override { project.select(record, languageOf(kGerman)); }

  std::string translation() const { return record->translationForSelectedString(&project); }
  void setTranslation(std::string_view text) { record->setTranslationForSelectedString(text, &project); }

  void expectNoEdit() { EXPECT_TRUE(project.edits().empty()); }
  void expectOneEdit(const Text& before, const Text& after) {
    ASSERT_EQ(project.edits().size(), 1U);
    EXPECT_EQ(project.edits()[0].record, record);
    EXPECT_EQ(project.edits()[0].language, kGerman);
    EXPECT_EQ(project.edits()[0].before, before);
    EXPECT_EQ(project.edits()[0].after, after);
  }

  FakeProjectContext project{2};
  std::shared_ptr<LocalizeString> record = std::make_shared<LocalizeString>();
};

TEST_F(LocalizeStringTranslationTest, IsThatOfTheSelectedLanguage) {
  store(*record, kGerman, "Öffnen");
  store(*record, kFrench, "Ouvrir");
  EXPECT_EQ(translation(), "Öffnen");
  project.select(record, languageOf(kFrench));
  EXPECT_EQ(translation(), "Ouvrir");
}

TEST_F(LocalizeStringTranslationTest, IsEmptyWithoutAnEntry) {
  store(*record, kFrench, "Ouvrir");
  EXPECT_EQ(translation(), "");
}

TEST_F(LocalizeStringTranslationTest, IsEmptyForAnEmptyEntryThatStaysPresent) {
  store(*record, kGerman, "");
  EXPECT_EQ(translation(), "");
  EXPECT_EQ(record->languagesDict().count(), 1U);
}

TEST_F(LocalizeStringTranslationTest, IsEmptyWithoutASelectionOrAProject) {
  store(*record, kGerman, "Öffnen");
  EXPECT_EQ(record->translationForSelectedString(nullptr), "");
  project.select(nullptr, languageOf(kGerman));
  EXPECT_EQ(translation(), "");
  project.select(record, nullptr);
  EXPECT_EQ(translation(), "");
}

TEST_F(LocalizeStringTranslationTest, IsThatOfTheSelectedRecordWhicheverRecordIsAsked) {
  store(*record, kGerman, "Öffnen");
  LocalizeString other;
  store(other, kGerman, "Schließen");
  EXPECT_EQ(other.translationForSelectedString(&project), "Öffnen");
}

TEST_F(LocalizeStringTranslationTest, SetOnAnotherRecordGoesToTheSelectedOne) {
  LocalizeString other;
  other.setTranslationForSelectedString("Öffnen", &project);
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  EXPECT_EQ(other.languagesDict().count(), 0U);
  expectOneEdit(std::nullopt, "Öffnen");
}

TEST_F(LocalizeStringTranslationTest, GetsAnEntryWhenItIsTheFirst) {
  setTranslation("Öffnen");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  EXPECT_EQ(record->languagesDict().count(), 1U);
  expectOneEdit(std::nullopt, "Öffnen");
}

TEST_F(LocalizeStringTranslationTest, LosesItsEntryWhenItIsCleared) {
  store(*record, kGerman, "Öffnen");
  store(*record, kFrench, "Ouvrir");
  setTranslation("");
  EXPECT_FALSE(record->languagesDict().contains(kGerman));
  EXPECT_EQ(record->languagesDict().find(kFrench), "Ouvrir");
  expectOneEdit("Öffnen", std::nullopt);
}

TEST_F(LocalizeStringTranslationTest, StaysWhenAnEmptyOneIsSetWhereThereIsNone) {
  setTranslation("");
  EXPECT_EQ(record->languagesDict().count(), 0U);
  expectNoEdit();
}

TEST_F(LocalizeStringTranslationTest, IsReplacedByAnotherText) {
  store(*record, kGerman, "Auf");
  setTranslation("Öffnen");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  expectOneEdit("Auf", "Öffnen");
}

TEST_F(LocalizeStringTranslationTest, StaysWhenItsOwnTextIsSetAgain) {
  store(*record, kGerman, "Öffnen");
  setTranslation(*record->languagesDict().find(kGerman));
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  expectNoEdit();
}

TEST_F(LocalizeStringTranslationTest, ReplacesAnEmptyEntry) {
  store(*record, kGerman, "");
  setTranslation("Öffnen");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  expectOneEdit("", "Öffnen");
}

TEST_F(LocalizeStringTranslationTest, RemovesAnEmptyEntryWhenAnEmptyOneIsSet) {
  store(*record, kGerman, "");
  setTranslation("");
  EXPECT_FALSE(record->languagesDict().contains(kGerman));
  expectOneEdit("", std::nullopt);
}

TEST_F(LocalizeStringTranslationTest, StaysWithoutASelectionOrAProject) {
  store(*record, kGerman, "Öffnen");
  record->setTranslationForSelectedString("Auf", nullptr);
  project.select(nullptr, languageOf(kGerman));
  setTranslation("Auf");
  setTranslation("");
  project.select(record, nullptr);
  setTranslation("Auf");
  setTranslation("");
  EXPECT_EQ(record->languagesDict().find(kGerman), "Öffnen");
  EXPECT_EQ(record->languagesDict().count(), 1U);
  expectNoEdit();
}

TEST_F(LocalizeStringTranslationTest, IsRawText) {
  setTranslation("Sag \\\"Hallo\\\"\\n\n");
  EXPECT_EQ(translation(), "Sag \\\"Hallo\\\"\\n\n");
}

}  // namespace
}  // namespace glossmill
