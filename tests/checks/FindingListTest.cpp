#include <gtest/gtest.h>

#include <set>

#include "checks/FindingList.h"

namespace glossmill {
namespace {

PlacedFinding findingAt(std::string_view file, std::uint32_t line, std::uint32_t column, std::string_view language,
                        std::string_view key, Check check = Check::Missing) {
  PlacedFinding finding;
  finding.check = check;
  finding.file = file;
  finding.line = line;
  finding.column = column;
  finding.language = language;
  finding.key = key;
  return finding;
}

std::vector<PlacedFinding> taken(const std::vector<PlacedFinding>& findings) {
  const CheckPolicy policy({}, {});
  FindingList list(policy);
  for (const PlacedFinding& finding : findings) list.add(finding);
  return list.take();
}

TEST(FindingList, OrdersByFileLineColumnLanguageCheckAndKey) {
  const std::vector<PlacedFinding> inOrder = {findingAt("", 0, 0, "", "a"),
                                              findingAt("a", 0, 0, "", "a"),
                                              findingAt("a", 2, 1, "", "a"),
                                              findingAt("a", 10, 0, "", "a"),
                                              findingAt("a", 10, 3, "de", "b"),
                                              findingAt("a", 10, 3, "de", "a", Check::Format),
                                              findingAt("a", 10, 3, "de", "b", Check::Format),
                                              findingAt("a", 10, 3, "fr", "a"),
                                              findingAt("b", 1, 1, "", "a")};
  std::vector<PlacedFinding> mixed(inOrder.rbegin(), inOrder.rend());
  const std::vector<PlacedFinding> result = taken(mixed);
  ASSERT_EQ(result.size(), inOrder.size());
  for (std::size_t at = 0; at < result.size(); ++at) {
    PlacedFinding found = result[at];
    EXPECT_EQ(std::tie(found.file, found.line, found.column, found.language, found.key, found.check),
              std::tie(inOrder[at].file, inOrder[at].line, inOrder[at].column, inOrder[at].language, inOrder[at].key,
                       inOrder[at].check))
        << at;
  }
}

TEST(FindingList, FillsTheSentence) {
  PlacedFinding finding = findingAt("a", 1, 1, "de", "k", Check::Punctuation);
  finding.kind = FindingKind::OtherClosingMark;
  finding.what = "!";
  finding.other = "?";
  EXPECT_EQ(taken({finding}).front().sentence, "The text ends with “!”, the source text with “?”.");
}

TEST(FindingList, AFingerprintOutlivesOtherLinesAndOtherTexts) {
  PlacedFinding finding = findingAt("a", 1, 1, "de", "k");
  finding.translation = "x";
  PlacedFinding moved = findingAt("b", 7, 3, "de", "k");
  moved.translation = "y";
  EXPECT_EQ(taken({finding}).front().fingerprint, taken({moved}).front().fingerprint);
  EXPECT_EQ(taken({finding}).front().fingerprint.size(), 16U);
}

TEST(FindingList, NoTwoFindingsShareAFingerprint) {
  const std::vector<PlacedFinding> findings =
      taken({findingAt("a", 1, 1, "de", "k"), findingAt("a", 2, 1, "de", "k"), findingAt("a", 1, 1, "fr", "k"),
             findingAt("a", 1, 1, "de", "l"), findingAt("a", 1, 1, "de", "k", Check::Format),
             findingAt("a", 1, 1, "", ""), findingAt("b", 1, 1, "", "")});
  std::set<std::string> fingerprints;
  for (const PlacedFinding& finding : findings) fingerprints.insert(finding.fingerprint);
  EXPECT_EQ(fingerprints.size(), 7U);
}

TEST(FindingList, DropsWhatIsIgnoredOrAccepted) {
  CheckSettings settings;
  settings.ignored = {{std::nullopt, "", "", "Vendor", ""}};
  settings.accepted = {{"", "k", "de", Check::Missing, std::nullopt, std::nullopt}};
  settings.severities = {{Check::Missing, Severity::Warning}};
  const CheckPolicy policy(settings, {});
  FindingList list(policy);
  EXPECT_FALSE(list.add(findingAt("Vendor/a", 1, 1, "fr", "k")));
  EXPECT_FALSE(list.add(findingAt("a", 1, 1, "de", "k")));
  EXPECT_EQ(list.add(findingAt("a", 1, 1, "fr", "k")), 0U);
  EXPECT_EQ(list.take().front().severity, Severity::Warning);
}

TEST(Acceptance, IsOfAFindingAboutAString) {
  PlacedFinding finding = findingAt("a", 1, 1, "de", "k", Check::Identical);
  finding.table = "Main";
  finding.source = "s";
  finding.translation = "t";
  EXPECT_EQ(acceptanceOf(finding), (Acceptance{"Main", "k", "de", Check::Identical, "s", "t"}));
  EXPECT_EQ(acceptanceOf(findingAt("a", 1, 1, "", "")), std::nullopt);
}

}  // namespace
}  // namespace glossmill
