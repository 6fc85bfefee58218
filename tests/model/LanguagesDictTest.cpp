#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "model/LanguagesDict.h"
#include "support/LanguageCodes.h"

namespace glossmill {
namespace {

const LanguageCode kItalian("it");

using Entries = std::map<std::string, std::string>;

Entries entriesOf(const LanguagesDict& dict) {
  Entries entries;
  dict.each([&entries](LanguageCode code, std::string_view text) { entries.emplace(code.text(), text); });
  return entries;
}

TEST(LanguagesDict, IsEmptyAtFirst) {
  const LanguagesDict dict;
  EXPECT_EQ(dict.count(), 0U);
  EXPECT_FALSE(dict.contains(kGerman));
  EXPECT_EQ(dict.find(kGerman), std::nullopt);
  EXPECT_EQ(entriesOf(dict), Entries());
}

TEST(LanguagesDict, FindsWhatWasSet) {
  LanguagesDict dict;
  dict.set(kFrench, "Ouvrir");
  dict.set(kGerman, "Öffnen");
  EXPECT_EQ(dict.find(kGerman), "Öffnen");
  EXPECT_EQ(dict.find(kFrench), "Ouvrir");
  EXPECT_EQ(dict.find(kItalian), std::nullopt);
  EXPECT_EQ(dict.count(), 2U);
}

TEST(LanguagesDict, KeepsTheLaterOfTwoTexts) {
  LanguagesDict dict;
  dict.set(kGerman, "Auf");
  dict.set(kGerman, "Öffnen");
  EXPECT_EQ(dict.find(kGerman), "Öffnen");
  EXPECT_EQ(dict.count(), 1U);
}

TEST(LanguagesDict, CountsTheEmptyTextAsAnEntry) {
  LanguagesDict dict;
  dict.set(kGerman, "");
  EXPECT_TRUE(dict.contains(kGerman));
  EXPECT_EQ(dict.find(kGerman), "");
  EXPECT_EQ(dict.count(), 1U);
  EXPECT_EQ(entriesOf(dict), (Entries{{"de", ""}}));
}

TEST(LanguagesDict, RemovesAnEntry) {
  LanguagesDict dict;
  dict.set(kGerman, "Öffnen");
  dict.set(kFrench, "");
  EXPECT_TRUE(dict.remove(kGerman));
  EXPECT_FALSE(dict.contains(kGerman));
  EXPECT_EQ(dict.count(), 1U);
  EXPECT_TRUE(dict.remove(kFrench));
  EXPECT_EQ(dict.count(), 0U);
}

TEST(LanguagesDict, SaysWhenThereIsNothingToRemove) {
  LanguagesDict dict;
  EXPECT_FALSE(dict.remove(kGerman));
  dict.set(kGerman, "Öffnen");
  EXPECT_FALSE(dict.remove(kFrench));
  EXPECT_TRUE(dict.remove(kGerman));
  EXPECT_FALSE(dict.remove(kGerman));
  EXPECT_EQ(dict.count(), 0U);
}

TEST(LanguagesDict, SetsAnEntryAgainAfterItsRemoval) {
  LanguagesDict dict;
  dict.set(kGerman, "Öffnen");
  dict.remove(kGerman);
  dict.set(kGerman, "Auf");
  EXPECT_EQ(dict.find(kGerman), "Auf");
  EXPECT_EQ(dict.count(), 1U);
}

TEST(LanguagesDict, VisitsEveryEntry) {
  LanguagesDict dict;
  dict.set(kItalian, "Apri");
  dict.set(kGerman, "Öffnen");
  dict.set(kFrench, "Ouvrir");
  dict.remove(kFrench);
  EXPECT_EQ(entriesOf(dict), (Entries{{"de", "Öffnen"}, {"it", "Apri"}}));
}

TEST(LanguagesDict, VisitsEntriesInTheOrderInWhichTheProgramMetTheirCodes) {
  LanguagesDict dict;
  const LanguageCode earlier("met earlier");
  const LanguageCode later("met later");
  dict.set(later, "2");
  dict.set(earlier, "1");
  std::string visited;
  dict.each([&visited](LanguageCode, std::string_view text) { visited += text; });
  EXPECT_EQ(visited, "12");
}

TEST(LanguagesDict, SharesAnArenaWithOthers) {
  const auto arena = std::make_shared<TextArena>();
  LanguagesDict open(arena);
  LanguagesDict close(arena);
  const StoredText shared = arena->add("Auf und zu");
  open.setStored(kGerman, shared);
  close.setStored(kGerman, shared);
  EXPECT_EQ(open.find(kGerman)->data(), close.find(kGerman)->data());
  open.set(kGerman, "Öffnen");
  EXPECT_EQ(close.find(kGerman), "Auf und zu");
}

TEST(LanguagesDict, KeepsItsTextsAliveAfterTheProjectLetGoOfTheArena) {
  auto arena = std::make_shared<TextArena>();
  LanguagesDict dict(arena);
  dict.set(kGerman, "Öffnen");
  arena.reset();
  EXPECT_EQ(dict.find(kGerman), "Öffnen");
}

TEST(LanguagesDict, IsIndependentOfItsCopy) {
  LanguagesDict dict;
  dict.set(kGerman, "Öffnen");
  LanguagesDict copy = dict;
  copy.set(kGerman, "Auf");
  copy.set(kFrench, "Ouvrir");
  EXPECT_EQ(entriesOf(dict), (Entries{{"de", "Öffnen"}}));
  EXPECT_EQ(entriesOf(copy), (Entries{{"de", "Auf"}, {"fr", "Ouvrir"}}));
}

TEST(LanguagesDict, HasNoEntriesWhereOnlyRoomWasMade) {
  LanguagesDict dict;
  dict.reserve(kItalian);
  EXPECT_EQ(dict.count(), 0U);
  dict.set(kItalian, "Apri");
  EXPECT_EQ(entriesOf(dict), (Entries{{"it", "Apri"}}));
}

TEST(LanguagesDict, AddsOneForEveryEntryToTheCounts) {
  LanguagesDict one;
  one.set(kGerman, "Öffnen");
  one.set(kItalian, "");
  LanguagesDict other;
  other.set(kGerman, "Schließen");
  other.set(kFrench, "Fermer");
  other.remove(kFrench);

  std::vector<std::size_t> counts;
  one.addTo(counts);
  other.addTo(counts);
  ASSERT_GT(counts.size(), kItalian.number());
  EXPECT_EQ(counts[kGerman.number()], 2U);
  EXPECT_EQ(counts[kItalian.number()], 1U);
  EXPECT_EQ(counts[kFrench.number()], 0U);
}

TEST(LanguagesDict, LeavesCountsLongerThanItselfAsTheyAre) {
  LanguagesDict dict;
  dict.set(kGerman, "Öffnen");
  std::vector<std::size_t> counts(kGerman.number() + 10, 5);
  dict.addTo(counts);
  EXPECT_EQ(counts[kGerman.number()], 6U);
  EXPECT_EQ(counts.back(), 5U);
  EXPECT_EQ(counts.size(), kGerman.number() + 10);
}

}  // namespace
}  // namespace glossmill
