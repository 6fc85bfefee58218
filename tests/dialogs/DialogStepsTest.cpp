#include <gtest/gtest.h>

#include "dialogs/LanguageWindowController.h"
#include "dialogs/SelectLanguageWindowController.h"
#include "support/RecordingHost.h"

namespace glossmill {
namespace {

std::string rowsOf(const ArrayController<Language>& controller) {
  const std::optional<std::size_t> row = controller.selectedRow();
  return std::to_string(controller.arrangedCount()) + (row ? ", selected " + std::to_string(*row) : "");
}

class RecordingAddDelegate : public SelectLanguageWindowControllerDelegate {
 public:
  explicit RecordingAddDelegate(CallRecorder& calls) : m_calls(calls) {}
  void selectLanguageWindowControllerDidSelect(SelectLanguageWindowController&,
                                               std::shared_ptr<Language> language) override {
    m_calls.add("delegate", "did select " + language->iso639());
  }

 private:
  CallRecorder& m_calls;
};

/// A table with one language of each length of code.
class AddLanguageSteps : public testing::Test {
 protected:
  AddLanguageSteps() {
    dialog.setDelegate(&delegate);
    dialog.languageController().addObserver(
        [this](ArrayChange) { calls.add("rows", rowsOf(dialog.languageController())); });
  }

  RecordingHost recording;
  CallRecorder& calls = recording.calls;
  RecordingAddDelegate delegate{calls};
  SelectLanguageWindowController dialog{recording.parts(), std::make_shared<LanguageArray>(),
                                        IsoTable::fromCsv("deu;de;German\r").value()};
};

TEST_F(AddLanguageSteps, OfLoadingEndWithTheFirstRowAndTheKeyboardInTheSearchField) {
  recording.host.defaults.setInteger("SelectLangaugeFilterButtonState", 2);
  dialog.window();
  dialog.window();
  const Lines expected = {
      "interface files: load SelectLanguageWindowController",
      "ISO table: set the double action",
      "code lengths: select item 2",
      "ISO table: begin updates",
      "rows: 0",
      "rows: 2",
      "ISO table: end updates",
      "defaults: SelectLangaugeFilterButtonState = 2",
      "defaults: synchronize",
      "rows: 2, selected 0",
      "add-language sheet: focus the main field",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(AddLanguageSteps, OfAnotherChoiceListAnewAndThenStoreIt) {
  dialog.window();
  calls.clear();
  recording.host.interfaces.selectLanguageWindow()->isoPopUpButton.selectedIndex = 1;
  dialog.changeFilter();
  const Lines expected = {
      "ISO table: begin updates",
      "rows: 0",
      "rows: 1",
      "ISO table: end updates",
      "defaults: SelectLangaugeFilterButtonState = 1",
      "defaults: synchronize",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(AddLanguageSteps, OfConfirmingEndTheSheetAndThenTellTheDelegate) {
  recording.sheets.beginSheet(dialog.window(), {});
  calls.clear();
  dialog.done();
  const Lines expected = {
      "add-language sheet: order out",
      "sheets: end add-language sheet",
      "sheets: did end add-language sheet",
      "delegate: did select de",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

TEST_F(AddLanguageSteps, OfCancellingEndTheSheetAndTellNobody) {
  recording.sheets.beginSheet(dialog.window(), {});
  calls.clear();
  dialog.cancel();
  const Lines expected = {
      "add-language sheet: order out",
      "sheets: end add-language sheet",
      "sheets: did end add-language sheet",
  };
  EXPECT_TRUE(sameLines(calls.lines(), expected));
}

}  // namespace
}  // namespace glossmill
