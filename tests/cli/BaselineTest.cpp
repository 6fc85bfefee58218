#include <gtest/gtest.h>

#include "cli/reports/Baseline.h"

namespace glossmill {
namespace {

PlacedFinding findingOf(Check check, std::string language, std::string key, std::string fingerprint) {
  PlacedFinding finding;
  finding.check = check;
  finding.language = std::move(language);
  finding.file = "my texts/" + finding.language + ".lproj/Localizable.strings";
  finding.key = std::move(key);
  finding.fingerprint = std::move(fingerprint);
  return finding;
}

const std::string kOne = "00000000000000a1";
const std::string kTwo = "00000000000000b2";
const std::string kThree = "00000000000000c3";

CheckReport reportOf(std::vector<PlacedFinding> findings) {
  CheckReport report;
  report.languages = {"de", "fr"};
  report.checks = {Check::Missing, Check::Format};
  report.findings = std::move(findings);
  return report;
}

TEST(Baseline, HasALineForEachFindingSortedByWhatPeopleRead) {
  const std::string text =
      baselineText({findingOf(Check::Missing, "fr", "Ebb", kOne),
                    findingOf(Check::Missing, "de", "Say \"ebb\"\n", kTwo), findingOf(Check::Format, "", "", kThree)});
  EXPECT_EQ(text.substr(text.find('\n') + 1),
            "format - my%20texts/.lproj/Localizable.strings \"\" 00000000000000c3\n"
            "missing de my%20texts/de.lproj/Localizable.strings \"Say \\\"ebb\\\"\\n\" 00000000000000b2\n"
            "missing fr my%20texts/fr.lproj/Localizable.strings \"Ebb\" 00000000000000a1\n");
}

TEST(Baseline, IsReadAsItWasWritten) {
  const std::string text =
      baselineText({findingOf(Check::Missing, "de", "a b c", kOne), findingOf(Check::Format, "", "", kTwo)});
  const Result<std::vector<BaselineLine>> lines = parseBaseline(text);
  ASSERT_TRUE(lines);
  ASSERT_EQ(lines.value().size(), 2U);
  EXPECT_EQ(lines.value()[0].check, "format");
  EXPECT_EQ(lines.value()[0].language, "");
  EXPECT_EQ(lines.value()[1].language, "de");
  EXPECT_EQ(lines.value()[1].fingerprint, kOne);
}

TEST(Baseline, TakesCommentsEmptyLinesAndForeignLineEnds) {
  const Result<std::vector<BaselineLine>> lines =
      parseBaseline("# by hand\r\n\r\nmissing de a \"b\" 00000000000000a1\r\n");
  ASSERT_TRUE(lines);
  ASSERT_EQ(lines.value().size(), 1U);
  EXPECT_EQ(lines.value()[0].fingerprint, kOne);
}

TEST(Baseline, NamesALineThatItCannotRead) {
  for (const std::string_view line : {"missing", "missing de", "missing de a \"b\"", "missing de 00000000000000a1",
                                      "missing de a \"b\" 00000000000000A1", "missing de a \"b\" 00000000000000a"}) {
    const Result<std::vector<BaselineLine>> lines = parseBaseline("# heading\n" + std::string(line) + "\n");
    ASSERT_FALSE(lines) << line;
    EXPECT_EQ(lines.error().sentence, "line 2 is no line that --write-baseline writes");
  }
}

TEST(Baseline, LeavesNewFindingsAndSaysHowManyAreKnown) {
  CheckReport report =
      reportOf({findingOf(Check::Missing, "de", "a", kOne), findingOf(Check::Missing, "de", "b", kTwo)});
  const std::string text = baselineText({report.findings[0]});
  applyBaseline(parseBaseline(text).value(), report);
  ASSERT_EQ(report.findings.size(), 1U);
  EXPECT_EQ(report.findings[0].key, "b");
  EXPECT_EQ(report.baseline->known, 1U);
  EXPECT_TRUE(report.baseline->gone.empty());
}

TEST(Baseline, NamesWhatNoLongerOccursButNotWhatNobodyLookedFor) {
  CheckReport report = reportOf({});
  const std::string text =
      baselineText({findingOf(Check::Missing, "de", "a", kOne), findingOf(Check::Missing, "sv", "other language", kTwo),
                    findingOf(Check::Unused, "de", "other check", kThree)});
  applyBaseline(parseBaseline(text).value(), report);
  EXPECT_EQ(report.baseline->known, 0U);
  EXPECT_EQ(report.baseline->gone,
            std::vector<std::string>{"missing de my%20texts/de.lproj/Localizable.strings \"a\" 00000000000000a1"});
}

}  // namespace
}  // namespace glossmill
