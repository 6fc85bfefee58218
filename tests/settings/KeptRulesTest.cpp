#include <gtest/gtest.h>

#include "app/RememberedRules.h"
#include "settings/KeptRules.h"
#include "support/TestHost.h"

namespace glossmill {
namespace {

class KeptRulesTest : public testing::Test {
 protected:
  KeptRulesTest() { m_host.files.addFile("/p/App.xcodeproj/project.pbxproj", "{}"); }

  Outcome keep(RuleSet rules, std::string_view directory = "/p") {
    ProjectOptions options;
    options.lockPatience = std::chrono::milliseconds(0);
    options.command = "window";
    return keepRules(m_host.parts(), FileUrl(directory), options, rules);
  }
  RuleSet remembered() { return rememberedRules(m_host.defaults, FileUrl("/p")); }

  TestHost m_host;
};

TEST_F(KeptRulesTest, AreRememberedWhereTheProjectHasNoSettings) {
  EXPECT_TRUE(keep(RuleSet::Xcode));
  EXPECT_EQ(remembered(), RuleSet::Xcode);
  EXPECT_FALSE(m_host.files.identityOf(FileUrl("/p/.glossmill.json")));
}

TEST_F(KeptRulesTest, AreThoseOfTheDirectoryOfAPackage) {
  EXPECT_TRUE(keep(RuleSet::Xcode, "/p/App.xcodeproj"));
  EXPECT_EQ(remembered(), RuleSet::Xcode);
}

TEST_F(KeptRulesTest, StandInTheSettingsOfAProjectThatHasSome) {
  m_host.files.addFile("/p/.glossmill.json", "{\"sourceLanguage\": \"en\"}\n");
  EXPECT_TRUE(keep(RuleSet::Xcode));
  EXPECT_EQ(m_host.files.bytesOf("/p/.glossmill.json"), "{\"rules\": \"xcode\", \"sourceLanguage\": \"en\"}\n");
  EXPECT_EQ(remembered(), RuleSet::Classic);
}

TEST_F(KeptRulesTest, SayWhyTheyCannotBeKept) {
  m_host.files.addFile("/p/.glossmill.json", "{\"rules\": 1}");
  EXPECT_EQ(keep(RuleSet::Xcode).error().sentence,
            ".glossmill.json, line 1: \"rules\" is either \"classic\" or \"xcode\"");
  m_host.files.addFile("/p/.glossmill.json", "{}");
  m_host.files.failOpening("/p/.glossmill.json", "It is locked.");
  EXPECT_EQ(keep(RuleSet::Xcode).error().sentence, "cannot write .glossmill.json: It is locked.");
}

TEST_F(KeptRulesTest, LeaveASettingsFileAloneThatAnotherProgramWrites) {
  m_host.files.addFile("/p/.glossmill.json", "{}");
  const auto lock = m_host.saves.tryLock(FileUrl("/p"));
  EXPECT_FALSE(keep(RuleSet::Xcode));
  EXPECT_EQ(m_host.files.bytesOf("/p/.glossmill.json"), "{}");
}

}  // namespace
}  // namespace glossmill
