#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/EditDoor.h"
#include "model/LocalizeString.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

/// A record without a translation.
class EditDoorTest : public testing::Test {
 protected:
  using Text = std::optional<std::string>;

  EditDoorTest() {
    m_door.addObserver([this](const Edit& edit, const EditStep& step) { m_heard.emplace_back(edit, step); });
  }

  void apply(EditKind kind, const Text& after) { m_door.applyEdit(kind, editOf(m_record, kGerman, after)); }
  Text german() const {
    const auto found = m_record->languagesDict().find(kGerman);
    return found ? Text(std::string(*found)) : std::nullopt;
  }
  std::vector<std::uint64_t> steps() const {
    std::vector<std::uint64_t> numbers;
    for (const auto& [edit, step] : m_heard) numbers.push_back(step.number);
    return numbers;
  }

  EditDoor m_door;
  std::shared_ptr<LocalizeString> m_record = std::make_shared<LocalizeString>();
  std::vector<std::pair<Edit, EditStep>> m_heard;
};

TEST_F(EditDoorTest, MakesReplacesAndRemovesAnEntry) {
  for (const Text& text : {Text("Auf"), Text("Öffnen"), Text(""), Text()}) {
    apply(EditKind::Typing, text);
    EXPECT_EQ(german(), text);
  }
  EXPECT_EQ(m_record->languagesDict().count(), 0U);
}

TEST_F(EditDoorTest, LeavesOtherLanguagesAlone) {
  store(*m_record, kFrench, "Ouvrir");
  apply(EditKind::Typing, "Auf");
  apply(EditKind::Typing, std::nullopt);
  EXPECT_EQ(m_record->languagesDict().find(kFrench), "Ouvrir");
}

TEST_F(EditDoorTest, TellsWhatWasThereAndWhatIs) {
  store(*m_record, kGerman, "Auf");
  apply(EditKind::Import, "Öffnen");
  ASSERT_EQ(m_heard.size(), 1U);
  const auto& [edit, step] = m_heard.front();
  EXPECT_EQ(edit.record, m_record);
  EXPECT_EQ(edit.language, kGerman);
  EXPECT_EQ(edit.before, "Auf");
  EXPECT_EQ(edit.after, "Öffnen");
  EXPECT_EQ(step.kind, EditKind::Import);
}

TEST_F(EditDoorTest, TellsTheEmptyTextFromNoEntry) {
  apply(EditKind::Typing, "");
  apply(EditKind::Typing, std::nullopt);
  ASSERT_EQ(m_heard.size(), 2U);
  EXPECT_EQ(m_heard[0].first.entryDifference(), 1);
  EXPECT_EQ(m_heard[1].first.before, "");
  EXPECT_EQ(m_heard[1].first.entryDifference(), -1);
}

TEST_F(EditDoorTest, TellsOnceTheEditIsApplied) {
  std::vector<Text> seen;
  m_door.addObserver([&](const Edit&, const EditStep&) { seen.push_back(german()); });
  apply(EditKind::Fill, "Auf");
  apply(EditKind::Fill, std::nullopt);
  EXPECT_EQ(seen, (std::vector<Text>{"Auf", std::nullopt}));
}

TEST_F(EditDoorTest, PassesOverWhatChangesNothing) {
  apply(EditKind::Import, std::nullopt);
  store(*m_record, kGerman, "");
  apply(EditKind::Import, "");
  EXPECT_TRUE(m_heard.empty());
  EXPECT_EQ(german(), "");
}

TEST_F(EditDoorTest, MakesEachEditAStepOfItsOwn) {
  apply(EditKind::Typing, "A");
  apply(EditKind::Typing, "Au");
  EXPECT_EQ(steps(), (std::vector<std::uint64_t>{1, 2}));
}

TEST_F(EditDoorTest, MakesOneStepOfWhatLiesBetweenBeginAndEnd) {
  apply(EditKind::Typing, "A");
  m_door.beginEdits();
  apply(EditKind::Import, "B");
  apply(EditKind::Import, "C");
  m_door.endEdits();
  apply(EditKind::Typing, "D");
  EXPECT_EQ(steps(), (std::vector<std::uint64_t>{1, 2, 2, 3}));
}

TEST_F(EditDoorTest, KeepsTwoStepsApartThatFollowEachOther) {
  m_door.beginEdits();
  apply(EditKind::Import, "A");
  m_door.endEdits();
  m_door.beginEdits();
  apply(EditKind::Fill, "B");
  m_door.endEdits();
  EXPECT_EQ(steps(), (std::vector<std::uint64_t>{1, 2}));
}

}  // namespace
}  // namespace glossmill
