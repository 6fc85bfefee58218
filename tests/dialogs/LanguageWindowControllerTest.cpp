#include <gtest/gtest.h>

#include "dialogs/LanguageWindowController.h"
#include "support/TestHost.h"

namespace glossmill {
namespace {

/// Keeps what it hears, and whether the sheet was still there then.
class RecordingDelegate : public LanguageWindowControllerDelegate {
 public:
  explicit RecordingDelegate(TestHost& host) : m_host(host) {}

  void languageWindowControllerDidSelectAllStrings(LanguageWindowController& chooser,
                                                   std::shared_ptr<Language> language, ExportScope scope) override {
    selected.emplace_back(language->iso639(), scope);
    note(chooser);
  }
  void languageWindowControllerDidCancel(LanguageWindowController& chooser) override {
    ++cancels;
    note(chooser);
  }

  std::vector<std::pair<std::string, ExportScope>> selected;
  int cancels = 0;
  LanguageWindowController* lastSender = nullptr;
  bool sheetWasUp = false;
  bool windowWasVisible = false;

 private:
  void note(LanguageWindowController& chooser) {
    lastSender = &chooser;
    sheetWasUp = m_host.sheets.count() != 0;
    windowWasVisible = m_host.interfaces.languageWindow(chooser)->window.isVisible;
  }

  TestHost& m_host;
};

std::shared_ptr<LanguageArray> germanAndFrench() {
  auto languages = std::make_shared<LanguageArray>();
  for (const char* code : {"de", "fr"}) {
    languages->push_back(std::make_shared<Language>());
    languages->back()->setIso639(code);
  }
  return languages;
}

class LanguageChooser : public testing::Test {
 protected:
  using Selected = std::vector<std::pair<std::string, ExportScope>>;

  LanguageWindowController& shown(std::string_view name = "ExportLanguageWindowController") {
    m_chooser = std::make_unique<LanguageWindowController>(m_host.parts(), name, m_languages);
    m_chooser->setDelegate(&m_delegate);
    m_host.sheets.beginSheet(m_chooser->window(), [this] { ++m_ends; });
    return *m_chooser;
  }
  HeadlessLanguageWindow& window() { return *m_host.interfaces.languageWindow(*m_chooser); }

  TestHost m_host;
  std::shared_ptr<LanguageArray> m_languages = germanAndFrench();
  RecordingDelegate m_delegate{m_host};
  std::unique_ptr<LanguageWindowController> m_chooser;
  int m_ends = 0;
};

TEST_F(LanguageChooser, OffersTheArrayThatItWasGiven) {
  EXPECT_EQ(shown().languageArray(), m_languages);
  ASSERT_EQ(m_chooser->languageController().arrangedCount(), 2U);
  EXPECT_EQ(m_chooser->languageController().arrangedObject(1), m_languages->back());
}

TEST_F(LanguageChooser, SelectsNoRowItself) {
  EXPECT_FALSE(shown().languageController().selectedRow());
}

TEST_F(LanguageChooser, TellsOfAllStringsWhileItsCheckBoxIsOff) {
  shown().languageController().setSelectionIndex(1);
  m_chooser->done();
  EXPECT_EQ(m_delegate.selected, (Selected{{"fr", ExportScope::AllStrings}}));
}

TEST_F(LanguageChooser, TellsOfTheRestrictionWhileItsCheckBoxIsOn) {
  shown().languageController().setSelectionIndex(0);
  window().checkButton.checked = true;
  m_chooser->done();
  EXPECT_EQ(m_delegate.selected, (Selected{{"de", ExportScope::Untranslated}}));
}

TEST_F(LanguageChooser, TellsAlwaysOfAllStringsWithoutACheckBox) {
  shown("LanguageWindowController").languageController().setSelectionIndex(0);
  window().checkButton.checked = true;
  m_chooser->done();
  EXPECT_EQ(m_delegate.selected, (Selected{{"de", ExportScope::AllStrings}}));
}

TEST_F(LanguageChooser, EndsTheSheetBeforeItTellsOfTheChoice) {
  shown().languageController().setSelectionIndex(0);
  m_chooser->done();
  EXPECT_EQ(m_delegate.lastSender, m_chooser.get());
  EXPECT_FALSE(m_delegate.sheetWasUp);
  EXPECT_FALSE(m_delegate.windowWasVisible);
  EXPECT_EQ(m_ends, 1);
}

TEST_F(LanguageChooser, EndsTheSheetBeforeItTellsOfTheCancel) {
  shown().cancel();
  EXPECT_EQ(m_delegate.cancels, 1);
  EXPECT_EQ(m_delegate.lastSender, m_chooser.get());
  EXPECT_FALSE(m_delegate.sheetWasUp);
  EXPECT_FALSE(m_delegate.windowWasVisible);
  EXPECT_TRUE(m_delegate.selected.empty());
}

TEST_F(LanguageChooser, ConfirmsByDoubleClick) {
  shown().languageController().setSelectionIndex(1);
  window().tableView.doubleAction();
  EXPECT_EQ(m_delegate.selected, (Selected{{"fr", ExportScope::AllStrings}}));
  EXPECT_EQ(m_host.sheets.count(), 0U);
}

TEST_F(LanguageChooser, IgnoresADoubleClickWithoutASelection) {
  shown();
  window().tableView.doubleAction();
  EXPECT_TRUE(m_delegate.selected.empty());
  EXPECT_EQ(m_host.sheets.count(), 1U);
}

TEST_F(LanguageChooser, IgnoresAConfirmationWithoutASelection) {
  shown().done();
  EXPECT_TRUE(m_delegate.selected.empty());
  EXPECT_EQ(m_delegate.cancels, 0);
  EXPECT_EQ(m_host.sheets.count(), 1U);
}

TEST_F(LanguageChooser, CanBeShownAgain) {
  shown().languageController().setSelectionIndex(0);
  m_chooser->done();
  const HeadlessLanguageWindow* const loaded = &window();
  m_host.sheets.beginSheet(m_chooser->window(), [] {});
  EXPECT_EQ(&window(), loaded);
  m_chooser->done();
  EXPECT_EQ(m_delegate.selected.size(), 2U);
}

TEST_F(LanguageChooser, EndsItsSheetAlsoWithoutADelegate) {
  shown().setDelegate(nullptr);
  m_chooser->languageController().setSelectionIndex(0);
  m_chooser->done();
  EXPECT_EQ(m_host.sheets.count(), 0U);
}

TEST_F(LanguageChooser, HasTheTextOfTheIncompleteStatus) {
  EXPECT_EQ(shown().languageStatus(), "Incomplete");
  TestHost german(EmbeddedBundle::StringsTable{{"Incomplete", "Unvollständig"}});
  EXPECT_EQ(LanguageWindowController(german.parts(), "LanguageWindowController", m_languages).languageStatus(),
            "Unvollständig");
}

}  // namespace
}  // namespace glossmill
