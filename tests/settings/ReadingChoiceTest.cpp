#include <gtest/gtest.h>

#include "settings/ReadingChoice.h"
#include "support/InMemoryFiles.h"

namespace glossmill {
namespace {

FileUrl asItStands(std::string_view path) {
  return FileUrl(path);
}

class ReadingChoiceTest : public testing::Test {
 protected:
  ReadingChoiceTest() {
    m_files.addFile("/p/App.xcodeproj/project.pbxproj", "{}");
    m_files.addFile("/p/lib/Lib.xcodeproj/project.pbxproj", "{}");
    m_files.addFile("/b/B.xcodeproj/project.pbxproj", "{}");
  }

  void settingsSay(std::string_view text) { m_files.addFile("/p/.glossmill.json", text); }

  Result<ReadingChoice> chosen(const ReadingWish& wish = {}, std::string_view opened = "/p") {
    return readingChoice(m_files, FileUrl(opened), wish, asItStands);
  }

  InMemoryFiles m_files;
};

TEST_F(ReadingChoiceTest, IsTheClassicRulesWhereNobodySaysAnything) {
  const Result<ReadingChoice> choice = chosen();
  ASSERT_TRUE(choice);
  EXPECT_EQ(choice.value().rules, RuleSet::Classic);
  EXPECT_EQ(choice.value().directory, FileUrl("/p"));
}

TEST_F(ReadingChoiceTest, TakesWhatTheFileSays) {
  settingsSay(R"json({"rules": "xcode", "packages": ["lib/Lib.xcodeproj", "/b/B.xcodeproj"],
      "exclude": ["Vendor/**"], "routines": ["My(key, comment)"], "sourceLanguage": "de"})json");
  const Result<ReadingChoice> choice = chosen();
  ASSERT_TRUE(choice);
  EXPECT_EQ(choice.value().rules, RuleSet::Xcode);
  const XcodeOptions& xcode = choice.value().xcode;
  EXPECT_EQ(xcode.packages, (std::vector<FileUrl>{FileUrl("/p/lib/Lib.xcodeproj"), FileUrl("/b/B.xcodeproj")}));
  EXPECT_EQ(xcode.exclude, std::vector<std::string>{"Vendor/**"});
  EXPECT_EQ(xcode.routines, std::vector<std::string>{"My(key, comment)"});
  EXPECT_EQ(xcode.sourceLanguage, "de");
}

TEST_F(ReadingChoiceTest, TakesAWishBeforeTheFile) {
  settingsSay(R"({"rules": "classic", "packages": ["lib/Lib.xcodeproj"]})");
  const Result<ReadingChoice> choice = chosen({RuleSet::Xcode, {"App.xcodeproj"}});
  ASSERT_TRUE(choice);
  EXPECT_EQ(choice.value().rules, RuleSet::Xcode);
  EXPECT_EQ(choice.value().xcode.packages, std::vector<FileUrl>{FileUrl("/p/App.xcodeproj")});
}

TEST_F(ReadingChoiceTest, TakesTheFileBeforeWhatIsRemembered) {
  ReadingWish remembered;
  remembered.otherwiseRules = RuleSet::Xcode;
  settingsSay("{}");
  EXPECT_EQ(chosen(remembered).value().rules, RuleSet::Xcode);
  settingsSay(R"({"rules": "classic"})");
  EXPECT_EQ(chosen(remembered).value().rules, RuleSet::Classic);
}

TEST_F(ReadingChoiceTest, OpensTheDirectoryOfAPackageWithThatPackage) {
  const Result<ReadingChoice> choice = chosen({RuleSet::Xcode, {}}, "/p/lib/Lib.xcodeproj");
  ASSERT_TRUE(choice);
  EXPECT_EQ(choice.value().directory, FileUrl("/p/lib"));
  EXPECT_EQ(choice.value().xcode.packages, std::vector<FileUrl>{FileUrl("/p/lib/Lib.xcodeproj")});
}

TEST_F(ReadingChoiceTest, LeavesAPackageADirectoryUnderTheClassicRules) {
  EXPECT_EQ(chosen({}, "/p/lib/Lib.xcodeproj").value().directory, FileUrl("/p/lib/Lib.xcodeproj"));
}

TEST_F(ReadingChoiceTest, SaysWhichPackageIsMissing) {
  const Result<ReadingChoice> choice = chosen({RuleSet::Xcode, {"None.xcodeproj"}});
  ASSERT_FALSE(choice);
  EXPECT_EQ(choice.error().sentence, "there is no package \"None.xcodeproj\"");
}

TEST_F(ReadingChoiceTest, PassesAMistakeInTheFileOn) {
  settingsSay("{\"rules\": 1}");
  const Result<ReadingChoice> choice = chosen();
  ASSERT_FALSE(choice);
  EXPECT_EQ(choice.error().sentence.substr(0, 24), ".glossmill.json, line 1:");
}

}  // namespace
}  // namespace glossmill
