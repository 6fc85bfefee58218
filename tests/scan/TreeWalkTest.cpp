#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scan/TreeWalk.h"
#include "scan/WalkedTree.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

// ---- Which files are sources ----

TEST(TreeWalk, GivesSourcesInTheOrderOfTheListings) {
  WalkedTree tree;
  for (const auto* path : {"b.m", "a/z.m", "c/d/e.m", "c/a.m", "Z.m"}) tree.add(path);
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/Z.m", "/P/a/z.m", "/P/b.m", "/P/c/a.m", "/P/c/d/e.m"}));
}

TEST(TreeWalk, TakesOnlySourcesThatTheProjectFileMentions) {
  WalkedTree tree;
  for (const auto* path : {"Bar.m", "Foo.m"}) tree.add(path);
  tree.walk("/* Foo.m in Sources */");
  EXPECT_EQ(tree.sources, Lines{"/P/Foo.m"});
}

TEST(TreeWalk, TakesASourceWhoseNameStandsInsideALongerOne) {
  WalkedTree tree;
  for (const auto* path : {"Bar.m", "Foo.m"}) tree.add(path);
  tree.walk("MyFoo.m Bar.mm");
  EXPECT_EQ(tree.sources, (Lines{"/P/Bar.m", "/P/Foo.m"}));
}

TEST(TreeWalk, TakesEverySourceWhenNoProjectFileWasEverRead) {
  WalkedTree tree;
  tree.add("Foo.m");
  tree.walk(std::nullopt);
  EXPECT_EQ(tree.sources, Lines{"/P/Foo.m"});
}

TEST(TreeWalk, TakesNoSourceWhenTheProjectFileIsEmpty) {
  WalkedTree tree;
  tree.add("Foo.m");
  tree.walk("");
  EXPECT_EQ(tree.sources, Lines());
}

TEST(TreeWalk, TakesFilesWithNoOtherExtension) {
  WalkedTree tree;
  for (const auto* path : {"Foo.h", "Foo.mm", "Foo.M", "Foo.m.txt", "Foo", "m"}) tree.add(path);
  tree.addDirectory("Bar.m");
  tree.walk("Foo.h Foo.mm Foo.M Foo.m.txt Foo m Bar.m");
  EXPECT_EQ(tree.sources, Lines());
}

TEST(TreeWalk, LooksIntoLanguagesPackagesAndBuildFolders) {
  WalkedTree tree;
  for (const auto* path : {"a.xcodeproj/1.m", "build/2.m", "c.m/3.m", "en.lproj/4.m"}) tree.add(path);
  tree.walk();
  EXPECT_EQ(tree.sources, (Lines{"/P/a.xcodeproj/1.m", "/P/build/2.m", "/P/c.m/3.m", "/P/en.lproj/4.m"}));
}

TEST(TreeWalk, DoesNotVisitHiddenEntries) {
  WalkedTree tree;
  for (const auto* path : {".git/a.m", ".b.m", ".fr.lproj/Localizable.strings", "c.m"}) tree.add(path);
  tree.walk();
  EXPECT_EQ(tree.sources, Lines{"/P/c.m"});
  EXPECT_EQ(tree.languages.size(), 0U);
  EXPECT_EQ(tree.state.actualDirectoryDepth, 1);
}

// ---- Languages ----

TEST(TreeWalk, MakesALanguageOfEachLanguageDirectoryWithAStringsFile) {
  WalkedTree tree;
  tree.add("en.lproj/Localizable.strings");
  tree.add("de.lproj/Localizable.strings");
  tree.walk();
  EXPECT_EQ(tree.languageLines(),
            (Lines{"de -1 /P/de.lproj/Localizable.strings", "en -1 /P/en.lproj/Localizable.strings"}));
  EXPECT_EQ(tree.heard, (Lines{"strings of de", "strings of en"}));
  EXPECT_EQ(tree.languages[0]->description(), "German");
  EXPECT_EQ(tree.state.actualLanguage, tree.languages[1]);
}

TEST(TreeWalk, KeepsTheDirectoryAndTheCounterOfALanguageWithoutAStringsFile) {
  WalkedTree tree;
  tree.addDirectory("fr.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"fr 1 /P/fr.lproj"});
}

TEST(TreeWalk, RecordsTheDirectoriesEnteredSoFarAndNotTheDepth) {
  WalkedTree tree;
  for (const auto* path : {"a/b", "a/c", "de.lproj", "x/fr.lproj"}) tree.addDirectory(path);
  tree.walk();
  EXPECT_EQ(tree.languageLines(), (Lines{"de 4 /P/de.lproj", "fr 6 /P/x/fr.lproj"}));
}

TEST(TreeWalk, TurnsTheNameOfALanguageIntoItsCode) {
  WalkedTree tree;
  tree.add("English.lproj/Localizable.strings");
  tree.addDirectory("Swiss German.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), (Lines{"en -1 /P/English.lproj/Localizable.strings", "gsw 2 /P/Swiss German.lproj"}));
  EXPECT_EQ(tree.languages[0]->description(), "English");
  EXPECT_EQ(tree.heard, (Lines{"English is en", "strings of en", "Swiss German is gsw"}));
}

TEST(TreeWalk, TakesACodeOnlyWhenItIsShorterThanTheName) {
  const WalkedTree tree;
  EXPECT_EQ(languageCodeForDirectoryName(tree.isoTable, "German"), "de");
  EXPECT_EQ(languageCodeForDirectoryName(tree.isoTable, "Twi"), "tw");
  EXPECT_EQ(languageCodeForDirectoryName(tree.isoTable, "Two"), "Two");
}

TEST(TreeWalk, KeepsADirectoryNameThatIsNoNameOfALanguage) {
  const WalkedTree tree;
  for (const std::string_view name : {"de", "deu", "pt-BR", "Base", "german", "German ", ""}) {
    EXPECT_EQ(languageCodeForDirectoryName(tree.isoTable, name), name);
  }
}

TEST(TreeWalk, MakesALanguageWithoutADescriptionOfACodeThatTheTableLacks) {
  WalkedTree tree;
  tree.addDirectory("tlh.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"tlh 1 /P/tlh.lproj"});
  EXPECT_EQ(tree.languages[0]->description(), std::nullopt);
  EXPECT_EQ(tree.heard, Lines());
}

TEST(TreeWalk, MakesNoLanguageOfOtherDirectoriesAndOfFiles) {
  WalkedTree tree;
  for (const auto* path : {"de.Lproj", "en.lproj.bak", "lproj"}) tree.addDirectory(path);
  tree.add("fr.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines());
  EXPECT_EQ(tree.state.actualLanguage, nullptr);
}

TEST(TreeWalk, IgnoresASecondDirectoryOfALanguage) {
  WalkedTree tree;
  for (const auto* path : {"a/de.lproj", "b/de.lproj", "c/German.lproj"}) tree.addDirectory(path);
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 2 /P/a/de.lproj"});
  EXPECT_EQ(tree.heard, Lines{"German is de"});
}

TEST(TreeWalk, TakesADirectoryThatWasEnteredEarlierThanTheRecordedOne) {
  WalkedTree tree;
  auto german = std::make_shared<Language>();
  german->setIso639("de");
  german->setUrlDepth(2);
  tree.languages.push_back(german);
  tree.addDirectory("de.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
  EXPECT_EQ(tree.state.actualLanguage, nullptr);
}

TEST(TreeWalk, NeverTakesADirectoryInThePlaceOfAStringsFile) {
  WalkedTree tree;
  tree.add("a/de.lproj/Localizable.strings");
  tree.addDirectory("b/de.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de -1 /P/a/de.lproj/Localizable.strings"});
}

// ---- Strings files ----

TEST(TreeWalk, GivesAStringsFileToTheLanguageThatWasMadeLast) {
  WalkedTree tree;
  tree.add("de.lproj/Localizable.strings");
  tree.addDirectory("en.lproj");
  tree.add("other/Localizable.strings");
  tree.walk();
  EXPECT_EQ(tree.languageLines(),
            (Lines{"de -1 /P/de.lproj/Localizable.strings", "en -1 /P/other/Localizable.strings"}));
  EXPECT_EQ(tree.heard, (Lines{"strings of de", "strings of en"}));
}

TEST(TreeWalk, GivesTheStringsFileOfASecondDirectoryToAnotherLanguage) {
  WalkedTree tree;
  tree.add("a/en.lproj/Localizable.strings");
  tree.add("b/de.lproj/Localizable.strings");
  tree.add("c/en.lproj/Localizable.strings");
  tree.walk();
  EXPECT_EQ(tree.languageLines(),
            (Lines{"en -1 /P/a/en.lproj/Localizable.strings", "de -1 /P/c/en.lproj/Localizable.strings"}));
  EXPECT_EQ(tree.heard, (Lines{"strings of en", "strings of de", "strings of de"}));
}

TEST(TreeWalk, IgnoresAStringsFileBeforeTheFirstLanguage) {
  WalkedTree tree;
  tree.add("Localizable.strings");
  tree.addDirectory("de.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
  EXPECT_EQ(tree.heard, Lines());
}

TEST(TreeWalk, GivesAStringsFileBeforeTheFirstLanguageToThatOfAnEarlierWalk) {
  WalkedTree tree;
  tree.state.actualLanguage = std::make_shared<Language>();
  tree.state.actualLanguage->setIso639("fr");
  const auto earlier = tree.state.actualLanguage;
  tree.add("Localizable.strings");
  tree.addDirectory("de.lproj");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
  EXPECT_EQ(tree.heard, Lines{"strings of fr"});
  EXPECT_EQ(earlier->localizedStringUrl().path(), "/P/Localizable.strings");
}

TEST(TreeWalk, TakesStringsFilesWithNoOtherName) {
  WalkedTree tree;
  for (const auto* name : {"InfoPlist.strings", "localizable.strings", "MyLocalizable.strings"}) {
    tree.add(std::string("de.lproj/") + name);
  }
  tree.addDirectory("de.lproj/Localizable.strings");
  tree.walk();
  EXPECT_EQ(tree.languageLines(), Lines{"de 1 /P/de.lproj"});
}

TEST(TreeWalk, TakesAStringsFileThatTheProjectFileDoesNotMention) {
  WalkedTree tree;
  tree.add("de.lproj/Localizable.strings");
  tree.walk("Foo.m");
  EXPECT_EQ(tree.heard, Lines{"strings of de"});
}

}  // namespace
}  // namespace glossmill
