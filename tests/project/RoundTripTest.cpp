#include <gtest/gtest.h>

#include <random>
#include <set>

#include "exchange/ImportText.h"
#include "support/ExportedBlock.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

/// Makes text without slash, double quote and line feed, with a liking for what the formats could stumble over.
class RandomText {
 public:
  explicit RandomText(unsigned seed) : m_random(seed) {}

  std::string text(std::size_t longest) {
    static const std::vector<std::string> kPieces = {
        "a",  "b",      "Z",      "7",      " ", "-",  "--", "---", "*", "**",         "\\",   "\\n", "%",
        "%@", "%ld",    "=",      ";",      "'", "(",  "\t", "\r",  "<", "&",          "|",    "ä",   "ß",
        "é",  "\u00A0", "\u2028", "\uFEFF", "…", "漢", "字", "ع",   "ש", "\U0001F600", "\x01", "\x7F"};
    std::string made;
    for (std::size_t left = below(longest + 1); left > 0; --left) made += kPieces[below(kPieces.size())];
    return made;
  }
  std::size_t below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(m_random); }

 private:
  std::mt19937 m_random;
};

/// Records with different keys, some of them without a translation, some with an empty one.
StringArray randomRecords(unsigned seed) {
  RandomText random(seed);
  StringArray records;
  std::set<std::string> keys;
  for (std::size_t left = random.below(40); left > 0; --left) {
    auto record = std::make_shared<LocalizeString>();
    record->setName(random.text(12));
    if (!keys.insert(record->name()).second) continue;
    for (std::size_t comments = random.below(4); comments > 0; --comments) {
      record->commentArray().push_back(random.text(8));
    }
    if (random.below(4) != 0) store(*record, kFrench, random.text(12));
    records.push_back(std::move(record));
  }
  return records;
}

std::string exportAll(const StringArray& records) {
  std::string text = kExportTextStart;
  std::int64_t number = 0;
  for (const auto& record : records) appendExportBlock(text, *record, ++number, kFrench, ExportScope::AllStrings);
  return text;
}

ImportTable filledEntries(const StringArray& records) {
  ImportTable table;
  for (const auto& record : records) {
    const auto translation = record->languagesDict().find(kFrench);
    if (translation && !translation->empty()) table.emplace(record->name(), *translation);
  }
  return table;
}

TEST(RoundTrip, KeepsEveryTranslationOfTextsWithoutSlashQuoteAndLineFeed) {
  for (unsigned seed = 1; seed <= 500; ++seed) {
    const StringArray records = randomRecords(seed);
    ASSERT_EQ(importTable(exportAll(records)), filledEntries(records)) << "seed " << seed << exportAll(records);
  }
}

TEST(RoundTrip, ThroughTheProgramKeepsEveryTranslation) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    TestProject test;
    test.addLanguage("fr");
    test.open();
    test.project().stringController().addObjects(randomRecords(seed));
    std::vector<std::optional<std::string>> before;
    for (const std::string& key : test.keys()) before.push_back(test.translation(key, "fr"));

    test.project().exportLanguageToFileAllStrings(test.language("fr"), FileUrl("/x/App_fr.txt"),
                                                  ExportScope::AllStrings);
    test.host.runUntilIdle();
    test.project().importLanguageFromFile(test.language("fr"), FileUrl("/x/App_fr.txt"));
    test.host.runUntilIdle();

    std::vector<std::optional<std::string>> after;
    for (const std::string& key : test.keys()) after.push_back(test.translation(key, "fr"));
    ASSERT_EQ(after, before) << "seed " << seed;
    EXPECT_FALSE(test.project().changed());
  }
}

TEST(RoundTrip, LeavesStringsWithAnEmptyTranslationLineUntranslated) {
  TestProject test;
  test.addString("Open");
  test.addLanguage("fr");
  test.open();
  test.project().exportLanguageToFileAllStrings(test.language("fr"), FileUrl("/x/App_fr.txt"), ExportScope::AllStrings);
  test.host.runUntilIdle();
  test.project().importLanguageFromFile(test.language("fr"), FileUrl("/x/App_fr.txt"));
  test.host.runUntilIdle();
  EXPECT_EQ(test.translation("Open", "fr"), std::nullopt);
}

std::optional<std::string> importedAs(std::string_view key, std::string_view comment, std::string_view translation) {
  LocalizeString record;
  record.setName(key);
  record.commentArray().emplace_back(comment);
  store(record, kFrench, translation);
  std::string text = kExportTextStart;
  appendExportBlock(text, record, 1, kFrench, ExportScope::AllStrings);
  const ImportTable table = importTable(text);
  const auto found = table.find(std::string(key));
  return found == table.end() ? std::nullopt : std::optional(found->second);
}

TEST(RoundTrip, CutsASlashOutOfATranslation) {
  EXPECT_EQ(importedAs("On", "", "actif/inactif"), "actifnactif");
}

TEST(RoundTrip, CutsATranslationAtTwoSlashes) {
  EXPECT_EQ(importedAs("Site", "", "voir http://example.org"), "voir http:");
}

TEST(RoundTrip, LosesAStringWhoseKeyHoldsASlash) {
  EXPECT_EQ(importedAs("On/Off", "", "actif"), std::nullopt);
}

TEST(RoundTrip, LosesAStringWhoseCommentEndsEarly) {
  EXPECT_EQ(importedAs("On", "*/\n", "actif"), std::nullopt);
}

TEST(RoundTrip, KeepsASlashInAComment) {
  EXPECT_EQ(importedAs("On", "On/Off // switch", "actif"), "actif");
}

TEST(RoundTrip, KeepsPairedQuotesAndTheSlashesBetweenThem) {
  EXPECT_EQ(importedAs("Say \"Hi\"", "\"", "dire \"a/b\""), "dire \"a/b\"");
}

TEST(RoundTrip, CutsATranslationAtALineFeed) {
  EXPECT_EQ(importedAs("Open", "", "Ouvrir\nle fichier"), "Ouvrir");
}

}  // namespace
}  // namespace glossmill
