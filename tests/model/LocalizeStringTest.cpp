#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "model/LocalizeString.h"
#include "support/LanguageCodes.h"

namespace glossmill {
namespace {

LocalizeString commented(std::vector<std::string> comments) {
  LocalizeString record;
  record.setCommentArray(std::move(comments));
  return record;
}

TEST(LocalizeString, IsUsedOnceAndBlankAtFirst) {
  const LocalizeString record;
  EXPECT_EQ(record.useCount(), 1);
  EXPECT_EQ(record.name(), "");
  EXPECT_EQ(record.language(), "");
  EXPECT_EQ(record.sourceList(), "");
  EXPECT_EQ(record.comment(), "");
  EXPECT_TRUE(record.commentArray().empty());
  EXPECT_TRUE(record.filesArray().empty());
  EXPECT_EQ(record.languagesDict().count(), 0U);
}

TEST(LocalizeString, KeepsItsFields) {
  LocalizeString record;
  record.setName("Open \\\"file\\\"");
  record.setLanguage("de");
  record.setUseCount(7);
  record.setCommentArray({"one", "two"});
  record.setFilesArray({FileUrl("/a/Foo.m")});
  LanguagesDict dict;
  dict.set(kGerman, "Öffnen");
  record.setLanguagesDict(dict);

  EXPECT_EQ(record.name(), "Open \\\"file\\\"");
  EXPECT_EQ(record.language(), "de");
  EXPECT_EQ(record.useCount(), 7);
  EXPECT_EQ(record.commentArray(), (std::vector<std::string>{"one", "two"}));
  EXPECT_EQ(record.filesArray(), std::vector<FileUrl>{FileUrl("/a/Foo.m")});
  EXPECT_EQ(record.languagesDict().find(kGerman), "Öffnen");
}

TEST(LocalizeString, ListsItsSourcesWithDuplicates) {
  LocalizeString record;
  record.setFilesArray({FileUrl("/a/AppDelegate.m"), FileUrl("/a/Foo.m"), FileUrl("/a/AppDelegate.m")});
  EXPECT_EQ(record.sourceList(), "AppDelegate.m, Foo.m, AppDelegate.m");
}

TEST(LocalizeString, ListsFilesOfOneNameInTwoFoldersTwice) {
  LocalizeString record;
  record.setFilesArray({FileUrl("/a/Foo.m"), FileUrl("/b/Foo.m")});
  EXPECT_EQ(record.sourceList(), "Foo.m, Foo.m");
}

TEST(LocalizeString, ListsAFileNameThatLooksLikeAFormat) {
  LocalizeString record;
  record.setFilesArray({FileUrl("/a/%@.m"), FileUrl("/a/100%%.m")});
  EXPECT_EQ(record.sourceList(), "%@.m, 100%%.m");
}

TEST(LocalizeString, JoinsCommentsByLineFeeds) {
  EXPECT_EQ(commented({"Menu title"}).comment(), "Menu title");
  EXPECT_EQ(commented({"Menu title", "Button", "Menu title"}).comment(), "Menu title\nButton\nMenu title");
}

TEST(LocalizeString, HasNoLeadingLineFeedForAnEmptyFirstComment) {
  EXPECT_EQ(commented({"", "Button"}).comment(), "Button");
  EXPECT_EQ(commented({"", "", "Button"}).comment(), "Button");
  EXPECT_EQ(commented({""}).comment(), "");
}

TEST(LocalizeString, KeepsTheLineFeedOfALaterEmptyComment) {
  EXPECT_EQ(commented({"Menu title", "", "Button"}).comment(), "Menu title\n\nButton");
  EXPECT_EQ(commented({"Menu title", ""}).comment(), "Menu title\n");
}

TEST(LocalizeString, JoinsCommentsThatLookLikeFormats) {
  EXPECT_EQ(commented({"%@", "100%% of %ld"}).comment(), "%@\n100%% of %ld");
}

}  // namespace
}  // namespace glossmill
