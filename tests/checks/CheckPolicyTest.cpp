#include <gtest/gtest.h>

#include "checks/CheckList.h"
#include "checks/CheckPolicy.h"

namespace glossmill {
namespace {

Finding findingOf(Check check, Severity severity) {
  return {check, severity, FindingKind::ReportedProblem, {}, {}, {}, {}};
}

TEST(CheckPolicy, HasAllChecksOnAsTheyAreByDefault) {
  const CheckPolicy policy(CheckSettings(), {});
  for (const CheckEntry& entry : checkList()) {
    EXPECT_TRUE(policy.isOn(entry.check)) << entry.name;
    EXPECT_EQ(policy.severityOf(findingOf(entry.check, entry.severity)), entry.severity) << entry.name;
  }
}

TEST(CheckPolicy, TakesSeveritiesFromTheSettings) {
  CheckSettings settings;
  settings.severities = {{Check::Identical, std::nullopt}, {Check::Punctuation, Severity::Error}};
  const CheckPolicy policy(settings, {});
  EXPECT_FALSE(policy.isOn(Check::Identical));
  EXPECT_EQ(policy.severityOf(findingOf(Check::Punctuation, Severity::Info)), Severity::Error);
}

TEST(CheckPolicy, LeavesFindingsMilderThatAreMilderThanTheirCheck) {
  CheckSettings settings;
  settings.severities = {{Check::Format, Severity::Error}, {Check::Duplicate, Severity::Info}};
  EXPECT_EQ(CheckPolicy(settings, {}).severityOf(findingOf(Check::Format, Severity::Warning)), Severity::Warning);
  EXPECT_EQ(CheckPolicy(settings, {}).severityOf(findingOf(Check::Duplicate, Severity::Error)), Severity::Info);
  settings.severities = {{Check::Format, Severity::Info}};
  EXPECT_EQ(CheckPolicy(settings, {}).severityOf(findingOf(Check::Format, Severity::Warning)), Severity::Info);
  EXPECT_EQ(CheckPolicy({}, {}).severityOf(findingOf(Check::Duplicate, Severity::Error)), Severity::Error);
}

TEST(CheckPolicy, HasOnlyWantedChecksOnAlsoWhereTheSettingsTurnThemOff) {
  CheckSettings settings;
  settings.severities = {{Check::Identical, std::nullopt}, {Check::Format, Severity::Warning}};
  const CheckPolicy policy(settings, {Check::Identical, Check::Format});
  EXPECT_TRUE(policy.isOn(Check::Identical));
  EXPECT_FALSE(policy.isOn(Check::Missing));
  EXPECT_EQ(policy.severityOf(findingOf(Check::Identical, Severity::Info)), Severity::Info);
  EXPECT_EQ(policy.severityOf(findingOf(Check::Format, Severity::Error)), Severity::Warning);
}

TEST(CheckPolicy, IgnoresWhatFitsAllThatIsSaid) {
  CheckSettings settings;
  settings.ignored = {{Check::Punctuation, "legal.*", "d?", "Vendor/**", ""}, {std::nullopt, "", "", "", "*/Old"}};
  const CheckPolicy policy(settings, {});
  const FindingSubject fits{Check::Punctuation, "Vendor/de.lproj/Localizable.strings", "", "legal.terms", "de"};
  EXPECT_TRUE(policy.ignores(fits));
  EXPECT_FALSE(policy.ignores({Check::Format, fits.file, fits.table, fits.key, fits.language}));
  EXPECT_FALSE(policy.ignores({fits.check, "App/de.lproj/x.strings", fits.table, fits.key, fits.language}));
  EXPECT_FALSE(policy.ignores({fits.check, fits.file, fits.table, "an legal.x", fits.language}));
  EXPECT_FALSE(policy.ignores({fits.check, fits.file, fits.table, fits.key, "deu"}));
  EXPECT_TRUE(policy.ignores({Check::Format, "a", "b/Old", "c", "fr"}));
  EXPECT_FALSE(policy.ignores({Check::Format, "a", "", "c", "fr"}));
}

TEST(CheckPolicy, KeepsTextsThatTheSettingsName) {
  CheckSettings settings;
  settings.keep = {"Time Machine", "macOS ?", "Glossmill *"};
  const CheckPolicy policy(settings, {});
  EXPECT_TRUE(policy.keeps("Time Machine"));
  EXPECT_TRUE(policy.keeps("macOS Ü"));
  EXPECT_TRUE(policy.keeps("Glossmill / Pro"));
  EXPECT_FALSE(policy.keeps("Time Machines"));
  EXPECT_FALSE(policy.keeps("macOS 13"));
}

TEST(CheckPolicy, AnAcceptanceHoldsForItsTextsOnly) {
  CheckSettings settings;
  settings.accepted = {{"Main", "open", "de", Check::Format, "Open %@", "Öffnen"}};
  const CheckPolicy policy(settings, {});
  const FindingSubject subject{Check::Format, "x", "Main", "open", "de"};
  EXPECT_TRUE(policy.isAccepted(subject, "Open %@", "Öffnen"));
  EXPECT_FALSE(policy.isAccepted(subject, "Open %d", "Öffnen"));
  EXPECT_FALSE(policy.isAccepted(subject, "Open %@", "Öffne"));
  EXPECT_FALSE(policy.isAccepted(subject, "Open %@", std::nullopt));
  EXPECT_FALSE(policy.isAccepted({Check::Identical, "x", "Main", "open", "de"}, "Open %@", "Öffnen"));
  EXPECT_FALSE(policy.isAccepted({Check::Format, "x", "", "open", "de"}, "Open %@", "Öffnen"));
  EXPECT_FALSE(policy.isAccepted({Check::Format, "x", "Main", "open", "fr"}, "Open %@", "Öffnen"));
}

}  // namespace
}  // namespace glossmill
