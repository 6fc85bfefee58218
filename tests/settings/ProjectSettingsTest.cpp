#include <gtest/gtest.h>

#include "settings/ProjectSettings.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

std::string mistakeIn(std::string_view text) {
  const Result<ProjectSettings> settings = parseProjectSettings(text);
  return settings ? "none" : settings.error().sentence;
}

TEST(ProjectSettings, SayHowAProjectIsRead) {
  const Result<ProjectSettings> settings = parseProjectSettings(R"json({
    "rules": "xcode",
    "packages": ["App.xcodeproj"],
    "exclude": ["Vendor/**"],
    "routines": ["MyString(key, comment)"],
    "sourceLanguage": "de"
  })json");
  ASSERT_TRUE(settings);
  EXPECT_EQ(settings.value(),
            (ProjectSettings{RuleSet::Xcode, {"App.xcodeproj"}, {"Vendor/**"}, {"MyString(key, comment)"}, "de"}));
}

TEST(ProjectSettings, NothingSaidIsNothingChosen) {
  EXPECT_EQ(parseProjectSettings("{}").value(), ProjectSettings());
  EXPECT_FALSE(parseProjectSettings("{}").value().rules);
}

TEST(ProjectSettings, AMistakeHasLineAndKey) {
  EXPECT_EQ(mistakeIn("{\n  \"rules\": \"x\"\n}"),
            ".glossmill.json, line 2: \"rules\" is either \"classic\" or \"xcode\"");
  EXPECT_EQ(mistakeIn("{\n\n  \"packages\": \"a\"}"), ".glossmill.json, line 3: \"packages\" takes a list of texts");
  EXPECT_EQ(mistakeIn("{\"exclude\": [1]}"), ".glossmill.json, line 1: \"exclude\" takes a list of texts");
  EXPECT_EQ(mistakeIn("{\"exclude\": [\"\"]}"), ".glossmill.json, line 1: \"exclude\" holds an empty text");
  EXPECT_EQ(mistakeIn("{\n\"sourceLanguage\": []}"), ".glossmill.json, line 2: \"sourceLanguage\" takes a text");
  EXPECT_EQ(
      mistakeIn("{\n\"routines\": [\"My(a)\"]}"),
      ".glossmill.json, line 2: \"routines\" \"My(a)\": The parameter \"a\" is none of key, table, value, comment, "
      "bundle and _");
}

TEST(ProjectSettings, AnUnknownKeyIsAMistake) {
  EXPECT_EQ(mistakeIn("{\"exclude\": [\"colour\"],\n\"colour\": 1}"),
            ".glossmill.json, line 2: \"colour\" is not known");
}

TEST(ProjectSettings, WhatIsNoJsonHasALine) {
  EXPECT_EQ(mistakeIn("{\n  \"rules\" \"x\"\n}"), ".glossmill.json, line 2: this is not correct JSON");
  EXPECT_EQ(mistakeIn(""), ".glossmill.json, line 1: this is not correct JSON");
  EXPECT_EQ(mistakeIn("[]"), ".glossmill.json, line 1: an object is expected, in braces");
}

TEST(ProjectSettings, TheirTextSaysTheSame) {
  const ProjectSettings settings{RuleSet::Xcode, {"a.xcodeproj"}, {}, {"L(key)"}, "en"};
  EXPECT_EQ(parseProjectSettings(projectSettingsText(settings)).value(), settings);
}

std::string withRules(std::string_view text, RuleSet rules) {
  const Result<std::string> changed = settingsTextWithRules(text, rules);
  return changed ? changed.value() : changed.error().sentence;
}

TEST(ProjectSettings, GetOtherRulesAndStayOtherwiseAsTheyStand) {
  EXPECT_EQ(withRules("{ \"exclude\":[\"rules\"],\n\t\"rules\" : \"classic\" }\n", RuleSet::Xcode),
            "{ \"exclude\":[\"rules\"],\n\t\"rules\" : \"xcode\" }\n");
  EXPECT_EQ(withRules("\xEF\xBB\xBF{\"rules\": \"xcode\"}", RuleSet::Classic), "\xEF\xBB\xBF{\"rules\": \"classic\"}");
  EXPECT_EQ(withRules("{\"rules\": \"xcode\"}", RuleSet::Xcode), "{\"rules\": \"xcode\"}");
}

TEST(ProjectSettings, GetRulesInFrontWhereTheyHadNone) {
  EXPECT_EQ(withRules("{}", RuleSet::Xcode), "{\"rules\": \"xcode\"}");
  EXPECT_EQ(withRules("{\n  \"sourceLanguage\": \"en\"\n}\n", RuleSet::Xcode),
            "{\n  \"rules\": \"xcode\",\n  \"sourceLanguage\": \"en\"\n}\n");
  EXPECT_EQ(withRules("{\"sourceLanguage\": \"en\"}", RuleSet::Classic),
            "{\"rules\": \"classic\", \"sourceLanguage\": \"en\"}");
}

TEST(ProjectSettings, ThatAreNotUnderstoodAreNotChanged) {
  EXPECT_EQ(withRules("{\"colour\": 1}", RuleSet::Xcode), ".glossmill.json, line 1: \"colour\" is not known");
  EXPECT_EQ(withRules("{\"ru\\u006ces\": \"classic\"}", RuleSet::Xcode),
            ".glossmill.json, line 1: the rules cannot be changed here; change them in the file");
}

TEST(ProjectSettings, AreReadWhereTheFileIs) {
  InMemoryFiles files;
  files.addDirectory("/p");
  EXPECT_EQ(readProjectSettings(files, FileUrl("/p")).value(), ProjectSettings());
  files.addFile("/p/.glossmill.json", "{\"rules\": \"xcode\"}");
  EXPECT_EQ(readProjectSettings(files, FileUrl("/p")).value().rules, RuleSet::Xcode);
  files.failOpening("/p/.glossmill.json", "It is locked.");
  EXPECT_EQ(readProjectSettings(files, FileUrl("/p")).error().sentence, "cannot read .glossmill.json: It is locked.");
}

}  // namespace
}  // namespace glossmill
