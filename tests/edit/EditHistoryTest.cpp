#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

#include "edit/EditHistory.h"
#include "model/LocalizeString.h"
#include "support/LanguageCodes.h"

namespace glossmill {
namespace {

/// Two records without translations, and a history that hears of every edit.
class EditHistoryTest : public testing::Test {
 protected:
  using Text = std::optional<std::string>;

  EditHistoryTest() {
    door.addObserver([this](const Edit& edit, const EditStep& step) { history.add(edit, step); });
  }

  void apply(EditKind kind, const std::shared_ptr<LocalizeString>& record, const Text& after,
             LanguageCode language = kGerman) {
    door.applyEdit(kind, editOf(record, language, after));
  }
  void type(const Text& after) { apply(EditKind::Typing, ebb, after); }
  void takeTypingBack(const Text& after) { apply(EditKind::TypingBack, ebb, after); }
  void travel(const std::vector<Edit>& edits) {
    door.beginEdits();
    for (const Edit& edit : edits) {
      EXPECT_EQ(textOf(edit.record, edit.language), edit.before);
      door.applyEdit(EditKind::Undo, edit);
    }
    door.endEdits();
  }
  void undo() { travel(history.undo()); }
  void redo() { travel(history.redo()); }
  void undoAll() {
    while (history.undoStep()) undo();
  }
  void redoAll() {
    while (history.redoStep()) redo();
  }
  static Text textOf(const std::shared_ptr<LocalizeString>& record, LanguageCode language = kGerman) {
    const auto found = record->languagesDict().find(language);
    return found ? Text(std::string(*found)) : std::nullopt;
  }

  EditDoor door;
  EditHistory history;
  std::shared_ptr<LocalizeString> ebb = std::make_shared<LocalizeString>();
  std::shared_ptr<LocalizeString> flood = std::make_shared<LocalizeString>();
};

TEST_F(EditHistoryTest, NothingCanBeTakenBackOrMadeAgainAtTheBeginning) {
  EXPECT_EQ(history.undoStep(), nullptr);
  EXPECT_EQ(history.redoStep(), nullptr);
}

TEST_F(EditHistoryTest, WhatIsTypedDuringAVisitIsOneStep) {
  for (const char* text : {"E", "Eb", "Ebbe"}) type(text);
  ASSERT_NE(history.undoStep(), nullptr);
  EXPECT_EQ(history.undoStep()->kind, EditKind::Typing);
  EXPECT_EQ(history.undoStep()->language, kGerman);
  undo();
  EXPECT_EQ(textOf(ebb), std::nullopt);
  EXPECT_EQ(history.undoStep(), nullptr);
  redo();
  EXPECT_EQ(textOf(ebb), "Ebbe");
  EXPECT_EQ(history.redoStep(), nullptr);
}

TEST_F(EditHistoryTest, AnotherVisitAnotherStringAndAnotherLanguageAreStepsOfTheirOwn) {
  type("E");
  history.endVisit();
  type("Ebbe");
  apply(EditKind::Typing, flood, "Flut");
  apply(EditKind::Typing, flood, "flot", kFrench);
  undo();
  EXPECT_EQ(textOf(flood, kFrench), std::nullopt);
  EXPECT_EQ(textOf(flood), "Flut");
  undo();
  EXPECT_EQ(textOf(flood), std::nullopt);
  undo();
  EXPECT_EQ(textOf(ebb), "E");
  undo();
  EXPECT_EQ(textOf(ebb), std::nullopt);
  EXPECT_EQ(history.undoStep(), nullptr);
}

TEST_F(EditHistoryTest, AVisitThatChangedNothingInTheEndIsNoStepUntilTheNextKey) {
  type("E");
  type(std::nullopt);
  EXPECT_EQ(history.undoStep(), nullptr);
  EXPECT_EQ(history.redoStep(), nullptr);
  type("F");
  undo();
  EXPECT_EQ(textOf(ebb), std::nullopt);
}

TEST_F(EditHistoryTest, EditsOfABatchAreOneStepWithItsKindAndLanguage) {
  door.beginEdits();
  apply(EditKind::Import, ebb, "Ebbe");
  apply(EditKind::Import, flood, "Flut");
  door.endEdits();
  ASSERT_NE(history.undoStep(), nullptr);
  EXPECT_EQ(history.undoStep()->kind, EditKind::Import);
  EXPECT_EQ(history.undoStep()->language, kGerman);
  undo();
  EXPECT_EQ(textOf(ebb), std::nullopt);
  EXPECT_EQ(textOf(flood), std::nullopt);
  EXPECT_EQ(history.undoStep(), nullptr);
}

TEST_F(EditHistoryTest, AStepThroughSeveralLanguagesHasNone) {
  door.beginEdits();
  apply(EditKind::Fill, ebb, "Ebb");
  apply(EditKind::Fill, ebb, "Ebb", kFrench);
  door.endEdits();
  EXPECT_EQ(history.undoStep()->language, std::nullopt);
}

TEST_F(EditHistoryTest, ABatchThatChangesOnePlaceTwiceIsTakenBackFromItsEnd) {
  door.beginEdits();
  apply(EditKind::Import, ebb, "Ebbe");
  apply(EditKind::Import, ebb, "Niedrigwasser");
  door.endEdits();
  undo();
  EXPECT_EQ(textOf(ebb), std::nullopt);
  redo();
  EXPECT_EQ(textOf(ebb), "Niedrigwasser");
}

TEST_F(EditHistoryTest, ANewEditCutsOffWhatCouldBeMadeAgain) {
  type("Ebbe");
  history.endVisit();
  apply(EditKind::Typing, flood, "Flut");
  undo();
  undo();
  apply(EditKind::Fill, flood, "Flood");
  EXPECT_EQ(history.redoStep(), nullptr);
  undo();
  EXPECT_EQ(history.undoStep(), nullptr);
}

TEST_F(EditHistoryTest, WhatIsTypedAfterAnUndoIsAStepOfItsOwn) {
  type("E");
  history.endVisit();
  type("Eb");
  undo();
  type("Ebbe");
  undo();
  EXPECT_EQ(textOf(ebb), "E");
}

TEST_F(EditHistoryTest, WhatAnEditorHasTakenBackToTheBeginningCanBeMadeAgainAsAWhole) {
  apply(EditKind::Fill, flood, "Flood");
  for (const char* text : {"E", "Ebbe"}) type(text);
  takeTypingBack("E");
  EXPECT_EQ(history.redoStep(), nullptr);
  takeTypingBack(std::nullopt);
  EXPECT_EQ(history.undoStep()->kind, EditKind::Fill);
  undo();
  EXPECT_EQ(textOf(flood), std::nullopt);
  redo();
  redo();
  EXPECT_EQ(textOf(ebb), "Ebbe");
  EXPECT_EQ(history.redoStep(), nullptr);
}

TEST_F(EditHistoryTest, AnEditorMayTakeBackADeletionToo) {
  type("E");
  type(std::nullopt);
  takeTypingBack("E");
  undo();
  EXPECT_EQ(textOf(ebb), std::nullopt);
  redo();
  EXPECT_EQ(textOf(ebb), "E");
}

TEST_F(EditHistoryTest, WhatAnEditorMakesAgainItselfIsTypedLikeAnythingElse) {
  type("Ebbe");
  takeTypingBack(std::nullopt);
  type("Ebbe");
  EXPECT_EQ(history.redoStep(), nullptr);
  undo();
  EXPECT_EQ(textOf(ebb), std::nullopt);
  EXPECT_EQ(history.undoStep(), nullptr);
}

TEST_F(EditHistoryTest, NothingIsLeftWhenItIsCleared) {
  type("Ebbe");
  history.endVisit();
  apply(EditKind::Typing, flood, "Flut");
  undo();
  history.clear();
  EXPECT_EQ(history.undoStep(), nullptr);
  EXPECT_EQ(history.redoStep(), nullptr);
}

/// Whatever is done, in the end everything can be taken back and made again.
TEST_F(EditHistoryTest, AnyOrderOfEditsLeadsBackAndForthToTheSameTexts) {
  std::mt19937 random(5);
  const std::array<std::shared_ptr<LocalizeString>, 2> records{ebb, flood};
  const std::array<LanguageCode, 2> languages{kGerman, kFrench};
  const auto anyText = [&] {
    return random() % 3 == 0 ? Text() : Text(std::string(1, static_cast<char>('a' + random() % 3)));
  };
  const auto allTexts = [&] {
    return std::array{textOf(ebb), textOf(flood), textOf(ebb, kFrench), textOf(flood, kFrench)};
  };
  const auto nothing = allTexts();
  for (int round = 0; round < 3000; ++round) {
    const auto& record = records[random() % 2];
    const LanguageCode language = languages[random() % 2];
    switch (random() % 7) {
      case 0:
        door.beginEdits();
        for (int edit = 0; edit < 3; ++edit) apply(EditKind::Import, records[random() % 2], anyText(), language);
        door.endEdits();
        break;
      case 1:
        if (history.undoStep()) undo();
        break;
      case 2:
        if (history.redoStep()) redo();
        break;
      case 3:
        apply(EditKind::TypingBack, record, anyText(), language);
        break;
      case 4:
        history.endVisit();
        break;
      default:
        apply(EditKind::Typing, record, anyText(), language);
    }
    if (round % 100 != 0) continue;
    redoAll();
    const auto last = allTexts();
    undoAll();
    EXPECT_EQ(allTexts(), nothing);
    redoAll();
    EXPECT_EQ(allTexts(), last);
  }
}

}  // namespace
}  // namespace glossmill
