#include <gtest/gtest.h>

#include "settings/ProjectSettings.h"

namespace glossmill {
namespace {

std::string mistakeOfChecks(std::string_view text) {
  const Result<ProjectSettings> settings = parseProjectSettings(text);
  return settings ? "none" : settings.error().sentence;
}

CheckSettings checksIn(std::string_view text) {
  const Result<ProjectSettings> settings = parseProjectSettings(text);
  return settings ? settings.value().checks : CheckSettings();
}

TEST(CheckSettings, SayHowBadFindingsAreAndWhichAreLeftOut) {
  const CheckSettings checks = checksIn(R"json({"checks": {
    "severity": {"punctuation": "error", "identical": "off"},
    "ignore": [
      {"check": "format", "key": "legal.*", "language": "de", "file": "Vendor/**", "table": "Main"},
      {"file": "Old"}
    ],
    "keep": ["Time Machine"]
  }})json");
  CheckSettings expected;
  expected.areNamed = true;
  expected.severities = {{Check::Punctuation, Severity::Error}, {Check::Identical, std::nullopt}};
  expected.ignored = {{Check::Format, "legal.*", "de", "Vendor/**", "Main"}, {std::nullopt, "", "", "Old", ""}};
  expected.keep = {"Time Machine"};
  EXPECT_EQ(checks, expected);
}

TEST(CheckSettings, AreNamedAlsoWhenTheySayNothing) {
  EXPECT_TRUE(checksIn("{\"checks\": {}}").areNamed);
  EXPECT_FALSE(checksIn("{}").areNamed);
}

TEST(CheckSettings, AMistakeHasLineAndKey) {
  EXPECT_EQ(mistakeOfChecks("{\n\"checks\": []}"), ".glossmill.json, line 2: \"checks\" takes an object");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\n\"colour\": 1}}"),
            ".glossmill.json, line 2: \"colour\" in \"checks\" is not known");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"severity\": {\n\n\"formt\": \"off\"}}}"),
            ".glossmill.json, line 3: \"formt\" in \"severity\" in \"checks\" is no check");
  EXPECT_EQ(
      mistakeOfChecks("{\"checks\": {\"severity\": {\"format\": \"off\",\n\"missing\": \"bad\"}}}"),
      ".glossmill.json, line 2: \"missing\" in \"severity\" in \"checks\" is one of error, warning, info and off");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"severity\": {\"format\": 1}}}"),
            ".glossmill.json, line 1: \"format\" in \"severity\" in \"checks\" is one of error, warning, info and off");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"keep\":\n[1]}}"),
            ".glossmill.json, line 1: \"keep\" in \"checks\" takes a list of texts");
}

TEST(CheckSettings, AMistakeInWhatIsIgnoredHasTheLineOfItsItem) {
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"ignore\": [\n{\"key\": \"a\"},\n{\"key\": 1}]}}"),
            ".glossmill.json, line 3: \"key\" in \"ignore\" in \"checks\" takes a text");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"ignore\": [{\"key\": \"a\"},\n\n{}]}}"),
            ".glossmill.json, line 3: \"ignore\" in \"checks\" holds an object that says nothing");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"ignore\": [\n\"a\"]}}"),
            ".glossmill.json, line 2: \"ignore\" in \"checks\" takes a list of objects");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"ignore\": [{\"check\": \"a\"}]}}"),
            ".glossmill.json, line 1: \"check\" in \"ignore\" in \"checks\" names no check");
  EXPECT_EQ(mistakeOfChecks("{\"checks\": {\"ignore\": [{\"a\": \"a\"}]}}"),
            ".glossmill.json, line 1: \"a\" in \"ignore\" in \"checks\" is not known");
}

TEST(CheckSettings, TheirTextSaysTheSame) {
  ProjectSettings settings;
  settings.checks.areNamed = true;
  settings.checks.severities = {{Check::Format, Severity::Warning}, {Check::Unused, std::nullopt}};
  settings.checks.ignored = {{Check::Format, "a", "de", "b/**", "c"}, {std::nullopt, "x", "", "", ""}};
  settings.checks.keep = {"OK"};
  EXPECT_EQ(parseProjectSettings(projectSettingsText(settings)).value(), settings);
}

}  // namespace
}  // namespace glossmill
