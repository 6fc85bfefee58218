#include "checks/FindingKinds.h"
#include "checks/ProjectOfRows.h"
#include "checks/RowFindings.h"

namespace glossmill {
namespace {

using enum FindingKind;
using Kinds = std::vector<FindingKind>;
using Text = std::optional<std::string_view>;

/// What is found in a row of no table.
Kinds foundIn(Text source, Text translation, const CheckPolicy& policy = CheckPolicy({}, {})) {
  LocalizeString record;
  record.setName("key");
  return kindsOf(rowFindings({record, source, translation, "de", "en", TextForm::Raw}, policy));
}

Kinds foundInTable(bool isWanted, bool isUnused, Text translation) {
  ProjectOfRows rows({"en", "de"});
  LocalizeString& record = rows.addToTable("key", "Open", {});
  record.tableRow()->isWanted = isWanted;
  record.tableRow()->isUnused = isUnused;
  return kindsOf(rowFindings({record, "Open", translation, "de", "en", TextForm::Values}, CheckPolicy({}, {})));
}

TEST(RowFindings, SayThatATranslationIsMissingOrEmpty) {
  EXPECT_EQ(foundIn("Open", std::nullopt), Kinds{NoTranslation});
  EXPECT_EQ(foundIn("Open", ""), Kinds{EmptyTranslation});
  EXPECT_EQ(foundIn("Open", "Öffnen"), Kinds());
  EXPECT_EQ(foundInTable(true, false, std::nullopt), Kinds{NoTranslation});
}

TEST(RowFindings, NothingIsMissingThatNobodyWants) {
  EXPECT_EQ(foundInTable(false, false, std::nullopt), Kinds());
  EXPECT_EQ(foundInTable(false, true, std::nullopt), Kinds());
}

TEST(RowFindings, AnEntryThatNothingNamesIsUnused) {
  EXPECT_EQ(foundInTable(false, true, "Öffnen"), Kinds{UnusedEntry});
  EXPECT_EQ(foundInTable(false, true, ""), Kinds{UnusedEntry});
}

TEST(RowFindings, WhatTheSystemReadsByItselfIsNotUnused) {
  ProjectOfRows rows({"en", "de"});
  LocalizeString& record = rows.addToTable("CFBundleName", "Harbour", {});
  record.tableRow()->isWanted = false;
  record.tableRow()->isUnused = true;
  auto table = std::make_shared<StringsTable>();
  table->name = "InfoPlist";
  record.tableRow()->table = std::move(table);
  EXPECT_EQ(kindsOf(rowFindings({record, "Harbour", "Hafen", "de", "en", TextForm::Values}, CheckPolicy({}, {}))),
            Kinds());
}

TEST(RowFindings, ComeFromAllChecksThatLookAtTexts) {
  EXPECT_EQ(foundIn("%d left?", " \"%@\"\a!"),
            (Kinds{TextNotKept, ArgumentOfOtherType, WhiteSpaceInFront, ControlCharacter, OtherClosingMark}));
  EXPECT_EQ(foundIn("Open it?", "Auf!"), Kinds{OtherClosingMark});
  EXPECT_EQ(foundIn("Open it", "Open it"), Kinds{SameAsSource});
}

TEST(RowFindings, WithoutASourceTextNothingIsCompared) {
  EXPECT_EQ(foundIn(std::nullopt, "%@ \a?"), Kinds{ControlCharacter});
}

TEST(RowFindings, ComeFromChecksThatAreOnOnly) {
  const CheckPolicy onlyPunctuation({}, {Check::Punctuation});
  EXPECT_EQ(foundIn("%d left?", "%@ weg.", onlyPunctuation), Kinds{OtherClosingMark});
  EXPECT_EQ(foundIn("Open", std::nullopt, onlyPunctuation), Kinds());
}

TEST(RowFindings, TextsThatAreKeptMayBeTheSame) {
  CheckSettings settings;
  settings.keep = {"Time *"};
  EXPECT_EQ(foundIn("Time Machine", "Time Machine", CheckPolicy(settings, {})), Kinds());
  EXPECT_EQ(foundIn("My Machine", "My Machine", CheckPolicy(settings, {})), Kinds{SameAsSource});
}

}  // namespace
}  // namespace glossmill
