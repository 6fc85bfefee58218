#include <gtest/gtest.h>

#include "xcode/LanguageDirectories.h"

namespace glossmill {
namespace {

TEST(LanguageDirectories, ALanguageIsTheSpellingOfItsDirectory) {
  const LanguageDirectories directories({"pt_BR", "pt-BR", "zh-Hans"}, "en");
  for (const std::string& name : directories.names()) EXPECT_EQ(directories.languageOf(name), name);
}

TEST(LanguageDirectories, AnOldNameIsItsCode) {
  EXPECT_EQ(LanguageDirectories({"English", "de"}, "English").languageOf("English"), "en");
  EXPECT_EQ(LanguageDirectories({"English", "de"}, "English").development(), "en");
}

TEST(LanguageDirectories, AnOldNameBesideItsCodeIsALanguageOfItsOwn) {
  const LanguageDirectories directories({"English", "en"}, "English");
  EXPECT_EQ(directories.languageOf("English"), "English");
  EXPECT_EQ(directories.development(), "English");
  EXPECT_EQ(LanguageDirectories({"English", "en"}, "en").development(), "en");
}

TEST(LanguageDirectories, BaseHoldsTheDevelopmentLanguage) {
  EXPECT_EQ(LanguageDirectories({"Base", "de"}, "en").languageOf("Base"), "en");
  EXPECT_EQ(LanguageDirectories({"Base", "en"}, "en").languageOf("Base"), "Base");
  EXPECT_EQ(LanguageDirectories({"Base", "English"}, "en").languageOf("Base"), "Base");
  EXPECT_EQ(LanguageDirectories({"Base", "en"}, "de").languageOf("Base"), "de");
}

TEST(LanguageDirectories, OnlyBaseAndOldNamesNeedFilesToBeLanguages) {
  const LanguageDirectories directories({"Base", "English", "en", "de", "French"}, "en");
  EXPECT_FALSE(directories.isOwnLanguage("Base"));
  EXPECT_FALSE(directories.isOwnLanguage("English"));
  EXPECT_TRUE(directories.isOwnLanguage("French"));
  EXPECT_TRUE(directories.isOwnLanguage("de"));
}

}  // namespace
}  // namespace glossmill
