#include <gtest/gtest.h>

#include "app/Commands.h"
#include "app/RulesNews.h"
#include "support/TestProject.h"

namespace glossmill {
namespace {

constexpr const char* kProject = R"({ objects = {
  P = { isa = PBXProject; mainGroup = G; targets = (); developmentRegion = en; };
  G = { isa = PBXGroup; children = (S, E, D); sourceTree = "<group>"; };
  S = { isa = PBXFileReference; path = main.m; sourceTree = "<group>"; };
  E = { isa = PBXFileReference; path = en.lproj; sourceTree = "<group>"; };
  D = { isa = PBXFileReference; path = de.lproj; sourceTree = "<group>"; };
}; rootObject = P; })";

/// A project that each set of rules reads otherwise: a key with a nil comment, and one with an escape.
class RulesChoiceTest : public testing::Test {
 protected:
  RulesChoiceTest() : m_news(startedProject(), m_test.application.news(), m_test.host.bundle) {
    InMemoryFiles& files = m_test.host.files;
    files.addFile("/x/App/App.xcodeproj/project.pbxproj", kProject);
    files.addFile("/x/App/main.m", "NSLocalizedString(@\"Ebb\", nil); NSLocalizedString(@\"Tide\", @\"\");");
    files.addFile("/x/App/en.lproj/Localizable.strings", "\"Ebb\" = \"Ebb\";\n\"Tide\" = \"Tide\";\n");
    files.addFile("/x/App/de.lproj/Localizable.strings", "\"Ebb\" = \"Ebbe\";\n\"Tide\" = \"Tide\";\n");
    m_news.useXcodeRules = [this] { m_test.application.chooseRules(RuleSet::Xcode); };
    m_test.application.setRulesKeeper([this](const ProjectWindowController&, RuleSet rules) {
      m_kept.push_back(rules);
      return m_refusal ? Outcome(*m_refusal) : Outcome(Done{});
    });
    project().setSettingsReader([this](const ProjectOpening& wanted) {
      auto settled = wanted;
      settled.options.rules = m_kept.empty() ? RuleSet::Classic : m_kept.back();
      return settled;
    });
    m_test.project().openProjectAt(FileUrl("/x/App"));
    m_test.host.runUntilIdle();
  }
  ProjectWindowController& startedProject() {
    m_test.application.openProjectWindow();
    return m_test.project();
  }
  ProjectWindowController& project() { return m_test.project(); }
  void choose(CommandId id) {
    perform(m_test.application, command(id));
    m_test.host.runUntilIdle();
  }
  bool isMarked(CommandId id) { return isChosen(m_test.application, command(id)); }
  const News* news() { return m_test.application.news().current(); }

  TestProject m_test;
  RulesNews m_news;
  std::vector<RuleSet> m_kept;
  std::optional<Error> m_refusal;
};

TEST_F(RulesChoiceTest, ReadsTheProjectAnewByTheRulesThatAreChosen) {
  EXPECT_TRUE(isMarked(CommandId::UseClassicRules));
  EXPECT_EQ(m_test.keys(), std::vector<std::string>{"Tide"});
  choose(CommandId::UseXcodeRules);
  EXPECT_TRUE(isMarked(CommandId::UseXcodeRules));
  EXPECT_FALSE(isMarked(CommandId::UseClassicRules));
  EXPECT_EQ(m_test.keys(), (std::vector<std::string>{"Ebb", "Tide"}));
  EXPECT_EQ(m_kept, std::vector<RuleSet>{RuleSet::Xcode});
  choose(CommandId::UseClassicRules);
  EXPECT_EQ(m_test.keys(), std::vector<std::string>{"Tide"});
}

TEST_F(RulesChoiceTest, DoesNothingWithTheRulesThatAreOn) {
  choose(CommandId::UseClassicRules);
  EXPECT_TRUE(m_kept.empty());
}

TEST_F(RulesChoiceTest, KeepsWhatIsSelected) {
  m_test.select("Tide", "en");
  choose(CommandId::UseXcodeRules);
  EXPECT_EQ(project().selectedString()->name(), "Tide");
  EXPECT_EQ(project().selectedLanguage()->iso639(), "en");
}

TEST_F(RulesChoiceTest, AsksAboutUnsavedEditsFirst) {
  choose(CommandId::UseXcodeRules);
  m_test.select("Tide", "de");
  m_test.type("Gezeiten");
  m_test.host.panels.willAnswer(AlertAnswer::Other);
  choose(CommandId::UseClassicRules);
  EXPECT_EQ(m_kept.size(), 1U);
  EXPECT_EQ(m_test.translation("Tide", "de"), "Gezeiten");
  m_test.host.panels.willAnswer(AlertAnswer::Default);
  choose(CommandId::UseClassicRules);
  EXPECT_EQ(m_test.savedFile("de"), "\"Ebb\" = \"Ebbe\";\n\"Tide\" = \"Gezeiten\";\n");
  EXPECT_EQ(m_test.keys(), std::vector<std::string>{"Tide"});
  EXPECT_EQ(m_test.translation("Tide", "de"), "Gezeiten");
}

TEST_F(RulesChoiceTest, DropsTheEditsThatNobodyWantsToSave) {
  choose(CommandId::UseXcodeRules);
  m_test.select("Tide", "de");
  m_test.type("Gezeiten");
  m_test.host.panels.willAnswer(AlertAnswer::Alternate);
  choose(CommandId::UseClassicRules);
  EXPECT_EQ(m_test.translation("Tide", "de"), "Tide");
  EXPECT_FALSE(project().changed());
}

TEST_F(RulesChoiceTest, StaysWithTheRulesWhenTheChoiceCannotBeKept) {
  m_refusal = Error{"cannot write it"};
  choose(CommandId::UseXcodeRules);
  EXPECT_EQ(m_test.alertMessages(), std::vector<std::string>{"cannot write it"});
  EXPECT_TRUE(isMarked(CommandId::UseClassicRules));
  EXPECT_EQ(m_test.keys(), std::vector<std::string>{"Tide"});
}

TEST_F(RulesChoiceTest, CanOnlyBeMadeForAnOpenProject) {
  EXPECT_TRUE(isEnabled(m_test.application, command(CommandId::UseXcodeRules)));
  choose(CommandId::Close);
  EXPECT_FALSE(isEnabled(m_test.application, command(CommandId::UseXcodeRules)));
  EXPECT_FALSE(isMarked(CommandId::UseClassicRules));
  EXPECT_FALSE(isChoice(command(CommandId::Close)));
}

TEST_F(RulesChoiceTest, IsOfferedWhereTheClassicRulesLeaveSomethingOut) {
  ASSERT_NE(news(), nullptr);
  EXPECT_EQ(news()->text,
            "1 call was not taken, and 2 entries match no call. Xcode's rules may read more of this project.");
  EXPECT_EQ(news()->kind, NewsKind::Offer);
  m_test.application.news().perform(0);
  m_test.host.runUntilIdle();
  EXPECT_TRUE(isMarked(CommandId::UseXcodeRules));
  EXPECT_EQ(news(), nullptr);
}

TEST_F(RulesChoiceTest, IsNotOfferedWhereNothingIsLeftOut) {
  m_test.host.files.addFile("/x/App/main.m",
                            "NSLocalizedString(@\"Ebb\", @\"\"); NSLocalizedString(@\"Tide\", @\"\");");
  ASSERT_TRUE(project().reloadProject());
  m_test.host.runUntilIdle();
  EXPECT_EQ(news(), nullptr);
}

}  // namespace
}  // namespace glossmill
