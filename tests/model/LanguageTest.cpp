#include <gtest/gtest.h>

#include "model/FakeBundle.h"
#include "model/FakeProjectContext.h"
#include "model/Language.h"

namespace glossmill {
namespace {

TEST(Language, IsBlankAtFirst) {
  const Language language;
  EXPECT_EQ(language.iso639(), "");
  EXPECT_EQ(language.description(), std::nullopt);
  EXPECT_TRUE(language.localizedStringUrl().empty());
  EXPECT_FALSE(language.isIso639_2());
  EXPECT_FALSE(language.inUse());
  EXPECT_EQ(language.urlDepth(), 0);
}

Language german() {
  Language language;
  language.setIso639("de");
  language.setDescription("German");
  language.setLocalizedStringUrl(FileUrl("/Harbour/de.lproj/Localizable.strings"));
  language.setIsIso639_2(true);
  language.setInUse(true);
  language.setUrlDepth(Language::kStringsFile);
  return language;
}

TEST(Language, KeepsItsFields) {
  const Language language = german();
  EXPECT_EQ(language.iso639(), "de");
  EXPECT_EQ(language.code(), LanguageCode("de"));
  EXPECT_EQ(language.description(), "German");
  EXPECT_EQ(language.localizedStringUrl(), FileUrl("/Harbour/de.lproj/Localizable.strings"));
  EXPECT_TRUE(language.isIso639_2());
  EXPECT_TRUE(language.inUse());
  EXPECT_EQ(language.urlDepth(), -1);
}

TEST(Language, KeepsAnUnknownDirectoryNameAsItsCode) {
  Language language;
  language.setIso639("Klingon (old)");
  EXPECT_EQ(language.iso639(), "Klingon (old)");
}

TEST(Language, CopiesItsStringsFileAndTheDepthThatSaysSo) {
  const Language language = german();
  const Language copy = language;
  EXPECT_EQ(copy.urlDepth(), -1);
  EXPECT_EQ(copy.localizedStringUrl(), language.localizedStringUrl());
}

TEST(Language, CopiesEveryField) {
  const Language language = german();
  const Language copy = language;
  EXPECT_EQ(copy.iso639(), "de");
  EXPECT_EQ(copy.description(), "German");
  EXPECT_TRUE(copy.isIso639_2());
  EXPECT_TRUE(copy.inUse());
}

TEST(Language, IsIndependentOfItsCopy) {
  const Language language = german();
  Language copy = language;
  copy.setIso639("fr");
  copy.setDescription(std::nullopt);
  copy.setLocalizedStringUrl(FileUrl("/Harbour/fr.lproj"));
  copy.setIsIso639_2(false);
  copy.setInUse(false);
  copy.setUrlDepth(3);
  EXPECT_EQ(language.iso639(), "de");
  EXPECT_EQ(language.description(), "German");
  EXPECT_EQ(language.localizedStringUrl().lastPathComponent(), "Localizable.strings");
  EXPECT_TRUE(language.isIso639_2());
  EXPECT_TRUE(language.inUse());
  EXPECT_EQ(language.urlDepth(), -1);
}

TEST(Language, AsksTheProjectForItsStatus) {
  const StatusTexts texts{FakeBundle()};
  const FakeProjectContext project(2);
  Language french;
  french.setIso639("fr");
  EXPECT_EQ(german().status(&project), Status::Complete);
  EXPECT_EQ(french.status(&project), Status::Incomplete);
  EXPECT_EQ(german().statusString(texts, &project), "status text of de");
}

TEST(Language, IsIncompleteWithoutAProject) {
  EXPECT_EQ(german().status(nullptr), Status::Incomplete);
  EXPECT_EQ(german().statusString(StatusTexts(FakeBundle()), nullptr), "Incomplete");
  EXPECT_EQ(german().statusString(StatusTexts(germanBundle()), nullptr), "Unvollständig");
}

}  // namespace
}  // namespace glossmill
