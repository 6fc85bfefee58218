#include <gtest/gtest.h>

#include <random>
#include <string>

#include "safety/JournalText.h"
#include "safety/UnsavedEdits.h"

namespace glossmill {
namespace {

JournalEdit edit(const std::string& key, const std::string& language, std::optional<std::string> before,
                 std::optional<std::string> after) {
  return {1795283100, "", key, language, std::move(before), std::move(after)};
}

std::string anyBytes(std::mt19937& random) {
  std::string bytes(random() % 20, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
  return bytes;
}

TEST(Journal, EveryEditComesBackWhateverItsTexts) {
  std::mt19937 random(3);
  std::string text;
  std::vector<JournalEdit> edits;
  for (int round = 0; round < 500; ++round) {
    JournalEdit one = edit(anyBytes(random), anyBytes(random), std::nullopt, std::nullopt);
    one.table = anyBytes(random);
    if (random() % 2 == 0) one.before = anyBytes(random);
    if (random() % 2 == 0) one.after = anyBytes(random);
    edits.push_back(one);
    text += journalLine(one);
  }
  EXPECT_EQ(readJournal(text), edits);
}

TEST(Journal, ALineThatWasCutOffAnywhereIsPassedOverAndTheOthersStay) {
  const std::string first = journalLine(edit("Anchor", "de", std::nullopt, "Anker"));
  const std::string second = journalLine(edit("Buoy", "de", "Boje", "Tonne"));
  for (std::size_t length = 0; length + 1 < second.size(); ++length) {
    EXPECT_EQ(readJournal(first + second.substr(0, length)).size(), 1U) << length;
  }
  EXPECT_EQ(readJournal(first + second.substr(0, 9) + first).size(), 1U);
  EXPECT_EQ(readJournal(first + second).size(), 2U);
}

TEST(UnsavedEdits, ManyEditsOfOnePlaceAreOneFromTheFirstTextToTheLast) {
  UnsavedEdits unsaved;
  unsaved.add(edit("Anchor", "de", "A", "An"));
  unsaved.add(edit("Anchor", "de", "An", "Ank"));
  unsaved.add(edit("Anchor", "fr", std::nullopt, "Ancre"));
  ASSERT_EQ(unsaved.count(), 2U);
  EXPECT_EQ(unsaved.all()[0], edit("Anchor", "de", "A", "Ank"));
}

TEST(UnsavedEdits, AnEditThatLeadsBackLeavesNothing) {
  UnsavedEdits unsaved;
  unsaved.add(edit("Anchor", "de", std::nullopt, "Anker"));
  unsaved.add(edit("Anchor", "de", "Anker", std::nullopt));
  EXPECT_TRUE(unsaved.empty());
}

TEST(UnsavedEdits, TheEmptyTextIsAnEntryAndNoEntryIsNone) {
  UnsavedEdits unsaved;
  unsaved.add(edit("Anchor", "de", std::nullopt, ""));
  ASSERT_EQ(unsaved.count(), 1U);
  EXPECT_EQ(readJournal(unsaved.journal()).at(0).before, std::nullopt);
  EXPECT_EQ(readJournal(unsaved.journal()).at(0).after, "");
}

TEST(UnsavedEdits, WhatIsOverGoesAndTheRestStays) {
  UnsavedEdits unsaved;
  unsaved.add(edit("Anchor", "de", std::nullopt, "Anker"));
  unsaved.add(edit("Anchor", "fr", std::nullopt, "Ancre"));
  EXPECT_EQ(unsaved.retire([](const JournalEdit& one) { return one.language == "de"; }), 1U);
  EXPECT_EQ(unsaved.all(), std::vector{edit("Anchor", "fr", std::nullopt, "Ancre")});
}

TEST(UnsavedEdits, PlacesDoNotRunIntoEachOther) {
  UnsavedEdits unsaved;
  unsaved.add(edit("b", "a", std::nullopt, "1"));
  unsaved.add(edit("", "ab", std::nullopt, "2"));
  EXPECT_EQ(unsaved.count(), 2U);
}

TEST(UnsavedEdits, TheirJournalKeepsTheOrderOfTheFirstEdits) {
  UnsavedEdits unsaved;
  for (const char* key : {"c", "a", "b", "a"}) unsaved.add(edit(key, "de", "x", std::string(key) + "!"));
  const std::vector<JournalEdit> edits = readJournal(unsaved.journal());
  ASSERT_EQ(edits.size(), 3U);
  EXPECT_EQ(edits[0].key + edits[1].key + edits[2].key, "cab");
}

}  // namespace
}  // namespace glossmill
