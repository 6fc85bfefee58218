#include <gtest/gtest.h>

#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Two strings in two languages, of which French has a text and an empty entry.
class Editing : public testing::Test {
 protected:
  void SetUp() override {
    m_test.addString("Add");
    m_test.addString("Bold");
    m_test.addString("Cut");
    m_test.addLanguage("de");
    m_test.addLanguage("fr", "\"Add\" = \"Ajouter\"\n\"Cut\" = \"\"\n");
    m_test.open();
  }

  TestProject m_test;
};

TEST_F(Editing, LeavesAFreshlyOpenedProjectWithoutAnythingToSave) {
  EXPECT_FALSE(m_test.project().changed());
  EXPECT_FALSE(m_test.project().canSave());
  EXPECT_TRUE(m_test.project().canClose());
}

TEST_F(Editing, OffersSavingAfterAFirstTranslation) {
  m_test.select("Bold", "fr");
  m_test.type("Gras");
  EXPECT_TRUE(m_test.project().changed());
  EXPECT_TRUE(m_test.project().canSave());
  EXPECT_TRUE(m_test.window().window.isDocumentEdited);
}

TEST_F(Editing, OffersNoSavingAfterOneTextReplacedAnother) {
  m_test.select("Add", "fr");
  m_test.type("Additionner");
  EXPECT_EQ(m_test.translation("Add", "fr"), "Additionner");
  EXPECT_FALSE(m_test.project().canSave());
}

TEST_F(Editing, OffersSavingAfterATranslationWasRemoved) {
  m_test.select("Add", "fr");
  m_test.type("");
  EXPECT_EQ(m_test.translation("Add", "fr"), std::nullopt);
  EXPECT_TRUE(m_test.project().canSave());
}

TEST_F(Editing, OffersSavingOnlyWhileAProjectIsOpen) {
  m_test.project().clearProject();
  m_test.project().setChanged(true);
  EXPECT_FALSE(m_test.project().canSave());
  EXPECT_FALSE(m_test.project().canClose());
}

TEST_F(Editing, EnablesTheToolBarItemWithTagTwoBySavingAndEveryOtherAlways) {
  EXPECT_FALSE(m_test.project().validateToolbarItem(2));
  for (const int other : {-1, 0, 1, 3, 14}) EXPECT_TRUE(m_test.project().validateToolbarItem(other)) << other;
  m_test.select("Bold", "fr");
  m_test.type("Gras");
  EXPECT_TRUE(m_test.project().validateToolbarItem(2));
}

TEST_F(Editing, ShowsTheTranslationOfALanguageThatIsSelected) {
  m_test.select("Add", "fr");
  const int before = m_test.window().translationTextView.changeCount;
  m_test.project().languageSelectionDidChange();
  EXPECT_EQ(m_test.window().translationTextView.changeCount, before + 1);
}

TEST_F(Editing, ChangesNothingWhenALanguageIsSelected) {
  for (const char* key : {"Add", "Bold"}) {
    m_test.select(key, "fr");
    m_test.project().languageSelectionDidChange();
  }
  EXPECT_EQ(m_test.translation("Add", "fr"), "Ajouter");
  EXPECT_EQ(m_test.translation("Bold", "fr"), std::nullopt);
  EXPECT_FALSE(m_test.project().changed());
}

TEST_F(Editing, KeepsAnEmptyEntryThatIsOnlyShown) {
  m_test.select("Cut", "fr");
  m_test.project().languageSelectionDidChange();
  EXPECT_EQ(m_test.translation("Cut", "fr"), "");
  EXPECT_EQ(m_test.project().languageStatusString(*m_test.language("fr")), "1 missing");
  EXPECT_FALSE(m_test.project().changed());
}

TEST_F(Editing, RemovesAnEmptyEntryThatIsTypedEmpty) {
  m_test.select("Cut", "fr");
  m_test.type("");
  EXPECT_EQ(m_test.translation("Cut", "fr"), std::nullopt);
  EXPECT_TRUE(m_test.project().changed());
}

TEST_F(Editing, ShowsNothingAnewWithoutASelectedString) {
  m_test.project().stringController().clearSelection();
  const int before = m_test.window().translationTextView.changeCount;
  m_test.project().languageSelectionDidChange();
  EXPECT_EQ(m_test.window().translationTextView.changeCount, before);
}

TEST_F(Editing, LeavesTheLanguageOfTheScanAlone) {
  const std::shared_ptr<Language> scanned = m_test.project().actualLanguage();
  m_test.select("Add", "de");
  m_test.project().languageSelectionDidChange();
  EXPECT_EQ(m_test.project().actualLanguage(), scanned);
}

}  // namespace
}  // namespace glossmill
