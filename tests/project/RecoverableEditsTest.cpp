#include <gtest/gtest.h>

#include "project/Recovery.h"
#include "support/LanguageCodes.h"
#include "support/StoredTranslation.h"

namespace glossmill {
namespace {

using Fit = RecoverableEdit::Fit;

JournalEdit left(const std::string& key, std::optional<std::string> before, std::optional<std::string> after,
                 const std::string& language = "de") {
  return {1795283100, "", key, language, std::move(before), std::move(after)};
}

/// "Ebb" is "Ebbe" in German, the one language; "Flood" has no translation.
class RecoverableEdits : public testing::Test {
 protected:
  RecoverableEdits() {
    StringArray records;
    for (const char* key : {"Ebb", "Flood"}) {
      records.push_back(std::make_shared<LocalizeString>());
      records.back()->setName(key);
    }
    store(*records.front(), kGerman, "Ebbe");
    byPlace.add(records);
    languages.push_back(std::make_shared<Language>());
    languages.back()->setIso639("de");
  }
  std::vector<RecoverableEdit> found(const std::vector<JournalEdit>& edits) {
    return recoverableEdits(edits, byPlace, languages);
  }
  Fit fitOf(const JournalEdit& edit) {
    const auto edits = found({edit});
    EXPECT_EQ(edits.size(), 1U);
    return edits.empty() ? Fit::NoString : edits.front().fit;
  }

  RecordsByPlace byPlace;
  LanguageArray languages;
};

TEST_F(RecoverableEdits, ApplyWhereTheTextIsStillWhatItWas) {
  EXPECT_EQ(fitOf(left("Ebb", "Ebbe", "Niedrigwasser")), Fit::Applies);
  EXPECT_EQ(fitOf(left("Ebb", "Ebbe", std::nullopt)), Fit::Applies);
  EXPECT_EQ(fitOf(left("Flood", std::nullopt, "Flut")), Fit::Applies);
}

TEST_F(RecoverableEdits, AreInConflictWhereTheTextHasChangedSince) {
  EXPECT_EQ(fitOf(left("Ebb", "Eb", "Niedrigwasser")), Fit::Changed);
  EXPECT_EQ(fitOf(left("Flood", "", "Flut")), Fit::Changed);
  const auto edits = found({left("Ebb", "Eb", "Niedrigwasser")});
  EXPECT_EQ(edits.at(0).now, "Ebbe");
  EXPECT_TRUE(edits.at(0).canBeApplied());
}

TEST_F(RecoverableEdits, CannotBeAppliedToWhatIsNotThereAnyMore) {
  EXPECT_EQ(fitOf(left("Gull", std::nullopt, "Möwe")), Fit::NoString);
  EXPECT_EQ(fitOf(left("Ebb", std::nullopt, "reflux", "fr")), Fit::NoLanguage);
  EXPECT_FALSE(found({left("Gull", std::nullopt, "Möwe")}).at(0).canBeApplied());
}

TEST_F(RecoverableEdits, LeaveOutWhatStandsThereAlready) {
  EXPECT_TRUE(found({left("Ebb", "E", "Ebbe"), left("Flood", "F", std::nullopt)}).empty());
}

TEST_F(RecoverableEdits, NameEachTextOnceAndKeepTheOrder) {
  const auto edits = found({left("Flood", std::nullopt, "new"), left("Ebb", "Ebbe", "E"), left("Flood", "other", "new"),
                            left("Flood", std::nullopt, "old")});
  ASSERT_EQ(edits.size(), 3U);
  EXPECT_EQ(edits[0].edit.after, "new");
  EXPECT_EQ(edits[1].edit.key, "Ebb");
  EXPECT_EQ(edits[2].edit.after, "old");
}

}  // namespace
}  // namespace glossmill
