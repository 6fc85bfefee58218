#include <gtest/gtest.h>

#include "settings/SettledOptions.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

ProjectOptions settled(std::string_view text, ProjectOptions options = {}) {
  InMemoryFiles files;
  files.addFile("/p/.glossmill.json", text);
  return settledOptions(files, FileUrl("/p"), std::move(options)).value();
}

TEST(SettledOptions, StayAsTheyAreWithoutAFile) {
  InMemoryFiles files;
  files.addDirectory("/p");
  ProjectOptions options;
  options.command = "window";
  const Result<ProjectOptions> settledByNothing = settledOptions(files, FileUrl("/p"), options);
  ASSERT_TRUE(settledByNothing);
  EXPECT_EQ(settledByNothing.value().rules, RuleSet::Classic);
  EXPECT_EQ(settledByNothing.value().command, "window");
}

TEST(SettledOptions, TakeWhatTheFileSays) {
  const ProjectOptions options = settled(R"json({"rules": "xcode", "packages": ["a/A.xcodeproj", "/b/B.xcodeproj"],
      "exclude": ["Vendor/**"], "routines": ["My(key, comment)"], "sourceLanguage": "de"})json");
  EXPECT_EQ(options.rules, RuleSet::Xcode);
  EXPECT_EQ(options.xcode.packages, (std::vector<FileUrl>{FileUrl("/p/a/A.xcodeproj"), FileUrl("/b/B.xcodeproj")}));
  EXPECT_EQ(options.xcode.exclude, std::vector<std::string>{"Vendor/**"});
  EXPECT_EQ(options.xcode.routines, std::vector<std::string>{"My(key, comment)"});
  EXPECT_EQ(options.xcode.sourceLanguage, "de");
}

TEST(SettledOptions, KeepTheRulesThatTheFileSaysNothingOf) {
  ProjectOptions options;
  options.rules = RuleSet::Xcode;
  EXPECT_EQ(settled("{}", options).rules, RuleSet::Xcode);
  EXPECT_EQ(settled(R"({"rules": "classic"})", options).rules, RuleSet::Classic);
}

TEST(SettledOptions, PassAMistakeOn) {
  InMemoryFiles files;
  files.addFile("/p/.glossmill.json", "{\"rules\": 1}");
  const Result<ProjectOptions> options = settledOptions(files, FileUrl("/p"), {});
  ASSERT_FALSE(options);
  EXPECT_EQ(options.error().sentence.substr(0, 24), ".glossmill.json, line 1:");
}

}  // namespace
}  // namespace glossmill
