#include <gtest/gtest.h>

#include <string>

#include "checks/InconsistentCheck.h"
#include "checks/ProjectOfRows.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

/// "row: what it is elsewhere" for the second language.
Lines found(const ProjectOfRows& rows) {
  const SourceTexts sources(rows.project);
  Lines lines;
  const SameSources groups = sameSources(sources, rows.project.records.size());
  for (const RowFinding& found : inconsistentFindings(rows.project.languages.at(1), groups)) {
    lines.push_back(std::to_string(found.row) + ": " + found.finding.what);
  }
  return lines;
}

TEST(InconsistentCheck, FindsTheRowsThatAreTranslatedInAnotherWayThanMost) {
  ProjectOfRows rows({"en", "de"});
  rows.add("a", {{"en", "Open"}, {"de", "Auf"}});
  rows.add("b", {{"en", "Open"}, {"de", "Öffnen"}});
  rows.add("c", {{"en", "Open"}, {"de", "Öffnen"}});
  rows.add("d", {{"en", "Close"}, {"de", "Zu"}});
  EXPECT_EQ(found(rows), Lines{"0: Öffnen"});
}

TEST(InconsistentCheck, TakesTheFirstOfTranslationsThatAreEquallyCommon) {
  ProjectOfRows rows({"en", "de"});
  rows.add("a", {{"en", "Open"}, {"de", "Auf"}});
  rows.add("b", {{"en", "Open"}, {"de", "Öffnen"}});
  EXPECT_EQ(found(rows), Lines{"1: Auf"});
}

TEST(InconsistentCheck, LooksOnlyAtRowsWithSourceTextAndTranslation) {
  ProjectOfRows rows({"en", "de"});
  rows.add("a", {{"de", "Auf"}});
  rows.add("b", {{"de", "Zu"}});
  rows.add("c", {{"en", "Open"}});
  rows.add("d", {{"en", "Open"}, {"de", ""}});
  rows.add("e", {{"en", "Open"}, {"de", "Öffnen"}});
  EXPECT_EQ(found(rows), Lines());
}

TEST(InconsistentCheck, WhatWasLeftAsItIsIsNoTranslation) {
  ProjectOfRows rows({"en", "de"});
  rows.add("a", {{"en", "Open"}, {"de", "Open"}});
  rows.add("b", {{"en", "Open"}, {"de", "Open"}});
  rows.add("c", {{"en", "Open"}, {"de", "Öffnen"}});
  EXPECT_EQ(found(rows), Lines());
}

TEST(InconsistentCheck, PassesOverBlanksOfOtherWidthsTextsWithoutWordsAndPlaceholders) {
  ProjectOfRows rows({"en", "de"});
  rows.add("a", {{"en", "%d files"}, {"de", "%d Dateien"}});
  rows.add("b", {{"en", "%d files"}, {"de", "%d\u00A0Dateien"}});
  rows.add("c", {{"en", "- 1"}, {"de", "a"}});
  rows.add("d", {{"en", "- 1"}, {"de", "b"}});
  rows.add("e", {{"en", "Text Cell"}, {"de", "a"}});
  rows.add("f", {{"en", "Text Cell"}, {"de", "b"}});
  EXPECT_EQ(found(rows), Lines());
}

}  // namespace
}  // namespace glossmill
