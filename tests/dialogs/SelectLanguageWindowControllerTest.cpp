#include <gtest/gtest.h>

#include "dialogs/SelectLanguageWindowController.h"
#include "support/TestHost.h"

namespace glossmill {
namespace {

using Rows = std::vector<std::string>;

constexpr const char* kSetting = "SelectLangaugeFilterButtonState";
constexpr int kTwoLetters = 0;
constexpr int kThreeLetters = 1;
constexpr int kBoth = 2;

class RecordingDialogDelegate : public SelectLanguageWindowControllerDelegate {
 public:
  explicit RecordingDialogDelegate(TestHost& host) : m_host(host) {}

  void selectLanguageWindowControllerDidSelect(SelectLanguageWindowController& dialog,
                                               std::shared_ptr<Language> language) override {
    selected.push_back(language);
    lastSender = &dialog;
    sheetWasUp = m_host.sheets.count() != 0;
    windowWasVisible = m_host.interfaces.selectLanguageWindow()->window.isVisible;
  }

  LanguageArray selected;
  SelectLanguageWindowController* lastSender = nullptr;
  bool sheetWasUp = false;
  bool windowWasVisible = false;

 private:
  TestHost& m_host;
};

/// A table of five languages; the project has French.
class SelectLanguage : public testing::Test {
 protected:
  SelectLanguage() {
    m_used->push_back(std::make_shared<Language>());
    m_used->back()->setIso639("fr");
  }

  SelectLanguageWindowController& shown() {
    m_dialog = std::make_unique<SelectLanguageWindowController>(m_host.parts(), m_used, m_table);
    m_dialog->setDelegate(&m_delegate);
    m_host.sheets.beginSheet(m_dialog->window(), [] {});
    return *m_dialog;
  }
  HeadlessSelectLanguageWindow& window() { return *m_host.interfaces.selectLanguageWindow(); }
  void choose(int item) {
    window().isoPopUpButton.selectItemAtIndex(item);
    m_dialog->changeFilter();
  }
  Rows rows() {
    Rows rows;
    for (std::size_t row = 0; row < m_dialog->languageController().arrangedCount(); ++row) {
      const Language& language = *m_dialog->languageController().arrangedObject(row);
      rows.push_back(language.iso639() + " " + language.description().value_or("?"));
    }
    return rows;
  }
  std::shared_ptr<Language> entry(std::string_view code) {
    for (const auto& language : *m_dialog->languageController().content()) {
      if (language->iso639() == code) return language;
    }
    return nullptr;
  }

  TestHost m_host;
  const IsoTable m_table =
      IsoTable::fromCsv("deu;de;German\rfra;fr;French\rast;;Asturian\rgre;el;Greek, Modern\rger;;German\r").value();
  std::shared_ptr<LanguageArray> m_used = std::make_shared<LanguageArray>();
  RecordingDialogDelegate m_delegate{m_host};
  std::unique_ptr<SelectLanguageWindowController> m_dialog;
};

TEST_F(SelectLanguage, OpensOnTwoLetterCodesWithoutAStoredSetting) {
  shown();
  EXPECT_EQ(window().isoPopUpButton.selectedIndex, kTwoLetters);
  EXPECT_EQ(rows(), (Rows{"fr French", "de German", "el Greek, Modern"}));
}

TEST_F(SelectLanguage, ListsThreeLetterCodes) {
  shown();
  choose(kThreeLetters);
  EXPECT_EQ(rows(), (Rows{"ast Asturian", "fra French", "deu German", "ger German", "gre Greek, Modern"}));
}

TEST_F(SelectLanguage, ListsALanguageThatHasBothCodesTwiceUnderBoth) {
  shown();
  choose(kBoth);
  EXPECT_EQ(rows(), (Rows{"ast Asturian", "fr French", "fra French", "de German", "deu German", "ger German",
                          "el Greek, Modern", "gre Greek, Modern"}));
}

TEST_F(SelectLanguage, ListsNothingForAnyOtherItem) {
  shown();
  for (const int other : {-1, 3}) {
    choose(other);
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(m_host.defaults.integerForKey(kSetting), other);
  }
}

TEST_F(SelectLanguage, DescribesTheKindOfEachCode) {
  shown();
  choose(kBoth);
  EXPECT_FALSE(entry("de")->isIso639_2());
  EXPECT_TRUE(entry("deu")->isIso639_2());
  EXPECT_EQ(entry("deu")->description(), "German");
  EXPECT_TRUE(entry("deu")->localizedStringUrl().empty());
  EXPECT_EQ(entry("deu")->urlDepth(), 0);
}

TEST_F(SelectLanguage, MarksLanguagesInUseByExactlyTheirCode) {
  m_used->push_back(std::make_shared<Language>());
  m_used->back()->setIso639("DE");
  shown();
  choose(kBoth);
  EXPECT_TRUE(entry("fr")->inUse());
  EXPECT_FALSE(entry("fra")->inUse());
  EXPECT_FALSE(entry("de")->inUse());
}

TEST_F(SelectLanguage, SelectsTheFirstRowAndFocusesTheSearchFieldWhenItOpens) {
  shown();
  EXPECT_EQ(m_dialog->languageController().selectedRow(), 0U);
  EXPECT_EQ(window().window.firstResponder, HeadlessWindow::FirstResponder::MainField);
}

TEST_F(SelectLanguage, OpensOnTheStoredSetting) {
  m_host.defaults.setInteger(kSetting, kThreeLetters);
  shown();
  EXPECT_EQ(window().isoPopUpButton.selectedIndex, kThreeLetters);
  EXPECT_EQ(rows().front(), "ast Asturian");
}

TEST_F(SelectLanguage, StoresTheChoiceAndWritesTheSettingsAtOnce) {
  shown();
  const int before = m_host.defaults.synchronizeCount();
  choose(kBoth);
  EXPECT_EQ(m_host.defaults.integerForKey(kSetting), kBoth);
  EXPECT_EQ(m_host.defaults.synchronizeCount(), before + 1);
}

TEST_F(SelectLanguage, WritesTheSettingBackWhenItIsOnlyOpenedAndCancelled) {
  m_host.defaults.setInteger(kSetting, kBoth);
  shown().cancel();
  EXPECT_EQ(m_host.defaults.integerForKey(kSetting), kBoth);
  EXPECT_EQ(m_host.defaults.synchronizeCount(), 1);
}

TEST_F(SelectLanguage, ClosesItsBatchOfUpdates) {
  shown();
  choose(kBoth);
  EXPECT_EQ(window().tableView.updatesDepth, 0);
}

TEST_F(SelectLanguage, NarrowsByCodeOrNameAnywhereInAnyCase) {
  shown();
  choose(kBoth);
  m_dialog->search("GER");
  EXPECT_EQ(rows(), (Rows{"de German", "deu German", "ger German"}));
  m_dialog->search("re");
  EXPECT_EQ(rows(), (Rows{"fr French", "fra French", "el Greek, Modern", "gre Greek, Modern"}));
  m_dialog->search(", mod");
  EXPECT_EQ(rows(), (Rows{"el Greek, Modern", "gre Greek, Modern"}));
  m_dialog->search("DEU");
  EXPECT_EQ(rows(), (Rows{"deu German"}));
}

TEST_F(SelectLanguage, FindsNothingForWhatNoLanguageHolds) {
  shown().search("Ägyptisch");
  EXPECT_TRUE(rows().empty());
}

TEST_F(SelectLanguage, ListsEverythingAgainForAnEmptySearch) {
  shown().search("german");
  m_dialog->search("");
  EXPECT_EQ(rows().size(), 3U);
}

TEST_F(SelectLanguage, KeepsTheSearchWhenTheCodesChange) {
  shown().search("german");
  choose(kThreeLetters);
  EXPECT_EQ(rows(), (Rows{"deu German", "ger German"}));
}

TEST_F(SelectLanguage, EndsTheSheetBeforeItTellsOfTheChoice) {
  shown().done();
  ASSERT_EQ(m_delegate.selected.size(), 1U);
  EXPECT_EQ(m_delegate.selected.front()->iso639(), "fr");
  EXPECT_EQ(m_delegate.lastSender, m_dialog.get());
  EXPECT_FALSE(m_delegate.sheetWasUp);
  EXPECT_FALSE(m_delegate.windowWasVisible);
}

TEST_F(SelectLanguage, ConfirmsByDoubleClick) {
  shown().languageController().setSelectionIndex(1);
  window().tableView.doubleAction();
  ASSERT_EQ(m_delegate.selected.size(), 1U);
  EXPECT_EQ(m_delegate.selected.front()->iso639(), "de");
}

TEST_F(SelectLanguage, IgnoresADoubleClickWithoutASelection) {
  shown().languageController().clearSelection();
  window().tableView.doubleAction();
  EXPECT_TRUE(m_delegate.selected.empty());
  EXPECT_EQ(m_host.sheets.count(), 1U);
}

TEST_F(SelectLanguage, IgnoresAConfirmationWithoutASelection) {
  shown().search("no such language");
  m_dialog->done();
  EXPECT_TRUE(m_delegate.selected.empty());
  EXPECT_EQ(m_host.sheets.count(), 1U);
}

TEST_F(SelectLanguage, TellsNobodyOfACancel) {
  shown().cancel();
  EXPECT_TRUE(m_delegate.selected.empty());
  EXPECT_EQ(m_host.sheets.count(), 0U);
  EXPECT_FALSE(window().window.isVisible);
}

TEST_F(SelectLanguage, OffersNothingWithoutATable) {
  SelectLanguageWindowController dialog(m_host.parts(), m_used, IsoTable());
  dialog.window();
  EXPECT_EQ(dialog.languageController().arrangedCount(), 0U);
  EXPECT_FALSE(dialog.languageController().selectedRow());
}

}  // namespace
}  // namespace glossmill
