#include "checks/FindingKinds.h"
#include "checks/FormatCheck.h"
namespace glossmill {
namespace {

using enum FindingKind;

void expectKinds(const std::vector<CheckCase>& cases) {
  expectFindings(formatFindings, cases);
}

TEST(FormatCheck, AcceptsWhatTakesTheSameArguments) {
  expectKinds({{"Delete %@?", "%@ löschen?", {}},
               {"%d of %d", "%d von %d", {}},
               {"%@ (%lu items)", "%@ (%lu Objekte)", {}},
               {"%i files", "%d Dateien", {}},
               {"%D files", "%ld Dateien", {}},
               {"%U files", "%lu Dateien", {}},
               {"0x%X", "0x%x", {}},
               {"%f s", "%g s", {}},
               {"%.2f MB", "%.1f MB", {}},
               {"%5d", "%-5d", {}},
               {"%+d", "%d", {}},
               {"%'d", "%d", {}},
               {"%#x", "%x", {}},
               {"%02d:%02d", "%02d.%02d", {}},
               {"%lld bytes", "%qd Byte", {}},
               {"%*d", "%*d", {}},
               {"%.*f", "%.*f", {}},
               {"%s: %s", "%s: %s", {}},
               {"%C", "%C", {}},
               {"%p", "%p", {}},
               {"%#@files@", "%#@files@", {}},
               {"", "", {}}});
}

TEST(FormatCheck, LetsPositionsReorder) {
  expectKinds({{"%@ by %@", "%2$@ von %1$@", {}},
               {"%1$@ by %2$@", "%@ von %@", {}},
               {"%@ has %d files", "%2$d Dateien hat %1$@", {}},
               {"%1$@ %2$@", "%2$@ %1$@ %2$@", {}},
               {"%@ of %@", "%1$@ (%1$@) von %2$@", {}},
               {"%1$#@files@ in %2$#@folders@", "%2$#@folders@: %1$#@files@", {}},
               {"%1$*2$d", "%1$*2$d", {}},
               {"%1$@ %@", "%1$@ %@", {}}});
}

TEST(FormatCheck, FindsArgumentsThatAreMissing) {
  expectKinds({{"Delete %@?", "Löschen?", {ArgumentMissing}},
               {"%d of %d", "%d", {ArgumentMissing}},
               {"%@ %@", "%1$@", {ArgumentMissing}},
               {"%@", "% @", {StraySign, ArgumentMissing}},
               {"%@", "%%@", {ArgumentMissing}},
               {"%@", "@%", {StraySign, ArgumentMissing}},
               {"%@", "$@", {ArgumentMissing}},
               {"%@ %@", "", {ArgumentMissing, ArgumentMissing}}});
}

TEST(FormatCheck, FindsArgumentsThatAreNotThere) {
  expectKinds({{"Delete?", "%@ löschen?", {ArgumentSurplus}},
               {"%d files", "%d von %d Dateien", {ArgumentSurplus}},
               {"%@", "%2$@", {ArgumentSkipped, ArgumentSurplus}},
               {"%d", "%*d", {ArgumentSurplus}},
               {"%@", "%1$@ %2$@ %2$@", {ArgumentSurplus}}});
}

TEST(FormatCheck, FindsGapsInThePositions) {
  expectKinds({{"%@ %@ %@", "%1$@ %3$@", {ArgumentSkipped}},
               {"%1$@ %2$@", "%2$@", {ArgumentSkipped}},
               {"%1$@ %3$@", "%3$@ %1$@", {}}});
}

TEST(FormatCheck, FindsOtherTypes) {
  expectKinds({{"%@", "%s", {ArgumentOfOtherType}},
               {"%@", "%d", {ArgumentOfOtherType}},
               {"%d", "%@", {ArgumentOfOtherType}},
               {"%d", "%u", {ArgumentOfOtherType}},
               {"%u", "%d", {ArgumentOfOtherType}},
               {"%d", "%f", {ArgumentOfOtherType}},
               {"%s", "%S", {ArgumentOfOtherType}},
               {"%c", "%C", {ArgumentOfOtherType}},
               {"%u", "%x", {ArgumentOfOtherType}},
               {"%o", "%x", {ArgumentOfOtherType}},
               {"%d", "%n", {ArgumentOfOtherType}},
               {"%p", "%x", {ArgumentOfOtherType}},
               {"%#@files@", "%#@folders@", {ArgumentOfOtherType}},
               {"%#@files@", "%@", {ArgumentOfOtherType}},
               {"%@ %d", "%d %@", {ArgumentOfOtherType, ArgumentOfOtherType}},
               {"%@ %d", "%2$@ %1$d", {ArgumentOfOtherType, ArgumentOfOtherType}}});
}

TEST(FormatCheck, TakesAnotherSizeForAWarning) {
  expectKinds({{"%d", "%ld", {ArgumentOfOtherSize}},
               {"%lu", "%u", {ArgumentOfOtherSize}},
               {"%lld", "%ld", {ArgumentOfOtherSize}},
               {"%zu", "%lu", {ArgumentOfOtherSize}},
               {"%hhd", "%hd", {ArgumentOfOtherSize}},
               {"%D", "%d", {ArgumentOfOtherSize}},
               {"%tx", "%jx", {ArgumentOfOtherSize}}});
  EXPECT_EQ(formatFindings({"%d", "%ld", "de", "en", TextForm::Values}).front().severity, Severity::Warning);
  EXPECT_EQ(formatFindings({"%d", "%lu", "de", "en", TextForm::Values}).front().severity, Severity::Error);
}

TEST(FormatCheck, FindsPositionsMixedWithNone) {
  expectKinds({{"%@ %@", "%1$@ %@", {PositionsMixed}},
               {"%1$@ %2$@", "%@ %2$@", {PositionsMixed}},
               {"%*d", "%1$*d", {PositionsMixed}}});
}

TEST(FormatCheck, FindsStraySignsBesideSpecifiers) {
  expectKinds({{"%d%% done", "%d % fertig", {StraySign}},
               {"%d%% done", "%d%% fertig", {}},
               {"%d %%", "%d%", {StraySign}},
               {"100%% sure", "100% sicher", {StraySign}},
               {"%@ is 50%% off", "%@: 50% Rabatt", {StraySign}},
               {"%@", "%@ %y", {StraySign}},
               {"%@", "%@ %1$", {StraySign}},
               {"%@", "%@ %-", {StraySign}},
               {"%@", "%@ %#@files", {ArgumentSurplus}},
               {"%@", "%@ %0$", {StraySign}}});
}

TEST(FormatCheck, AllowsStraySignsThatTheSourceTextHasToo) {
  expectKinds({{"%d% done", "%d% fertig", {}}, {"%@ %y", "%y %@", {}}});
}

TEST(FormatCheck, TakesPercentSignsInProseForWhatTheyAre) {
  expectKinds({{"50% off", "50% de descuento", {}},
               {"50% off", "%50 indirim", {}},
               {"50% off", "50 % Rabatt", {}},
               {"100%", "100 %", {}},
               {"100% safe", "100%sicher", {}},
               {"Save half", "50% sparen", {}},
               {"Save half", "50%% sparen", {}},
               {"All of it", "100%", {}}});
}

TEST(FormatCheck, StillFindsSpecifiersInProse) {
  expectKinds({{"50% off", "50% auf %@", {ArgumentSurplus}},
               {"50% off", "%d % Rabatt", {ArgumentSurplus}},
               {"Half", "%d", {ArgumentSurplus}}});
}

TEST(FormatCheck, MarksTheDifferenceInBothTexts) {
  const std::vector<Finding> findings =
      formatFindings({"Delete %@ now", "%s jetzt löschen", "de", "en", TextForm::Values});
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0], (Finding{Check::Format, Severity::Error, ArgumentOfOtherType, "%s", "%@", {7, 2}, {0, 2}}));
}

TEST(FormatCheck, NamesWhatIsMissingAndWhatIsSurplus) {
  EXPECT_EQ(formatFindings({"a %@", "b", "de", "en", TextForm::Values}),
            (std::vector<Finding>{{Check::Format, Severity::Error, ArgumentMissing, "%@", "", {2, 2}, {}}}));
  EXPECT_EQ(formatFindings({"a", "b %5.2f", "de", "en", TextForm::Values}),
            (std::vector<Finding>{{Check::Format, Severity::Error, ArgumentSurplus, "%5.2f", "", {}, {2, 5}}}));
}

}  // namespace
}  // namespace glossmill
