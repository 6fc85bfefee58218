#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "platform/FileUrl.h"

namespace glossmill {
namespace {

TEST(FileUrl, NamesNothingWhenEmpty) {
  const FileUrl none;
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(none.path(), "");
  EXPECT_EQ(none.text(), "");
  EXPECT_EQ(none.lastPathComponent(), "");
  EXPECT_EQ(none.pathExtension(), "");
  EXPECT_EQ(none, FileUrl(""));
  EXPECT_TRUE(FileUrl("").empty());
}

TEST(FileUrl, KeepsItsPath) {
  EXPECT_EQ(FileUrl("/Users/ida/Harbour").path(), "/Users/ida/Harbour");
  EXPECT_FALSE(FileUrl("/Users").empty());
}

TEST(FileUrl, HasNoFinalSlash) {
  EXPECT_EQ(FileUrl("/a/b/").path(), "/a/b");
  EXPECT_EQ(FileUrl("/a/b///").path(), "/a/b");
}

TEST(FileUrl, KeepsTheSlashOfTheRoot) {
  EXPECT_EQ(FileUrl("/").path(), "/");
  EXPECT_EQ(FileUrl("//").path(), "/");
}

TEST(FileUrl, EqualsAnotherWithTheSamePath) {
  EXPECT_EQ(FileUrl("/a/b"), FileUrl("/a/b/"));
  EXPECT_FALSE(FileUrl("/a/b") == FileUrl("/a/B"));
  EXPECT_FALSE(FileUrl("/a") == FileUrl());
}

TEST(FileUrl, SharesItsTextWithItsCopies) {
  const FileUrl url("/a/b");
  const FileUrl copy = url;
  EXPECT_EQ(url.path().data(), copy.path().data());
}

TEST(FileUrlText, BeginsWithTheSchemeAndHasNoFinalSlash) {
  EXPECT_EQ(FileUrl("/Users/ida/de.lproj/").text(), "file:///Users/ida/de.lproj");
  EXPECT_EQ(FileUrl("/").text(), "file:///");
}

TEST(FileUrlText, LeavesPlainCharactersAsTheyAre) {
  const std::string plain = "/azAZ09-._~!$&'()*+,=:@";
  EXPECT_EQ(FileUrl(plain).text(), "file://" + plain);
}

TEST(FileUrlText, EscapesEveryOtherAsciiCharacter) {
  constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/-._~!$&'()*+,=:@";
  constexpr std::string_view kHex = "0123456789ABCDEF";
  for (unsigned value = 1; value < 0x80; ++value) {
    const char character = static_cast<char>(value);
    const std::string escaped = {'%', kHex[value / 16], kHex[value % 16]};
    const bool plain = kPlain.find(character) != std::string_view::npos;
    const std::string expected = plain ? std::string(1, character) : escaped;
    EXPECT_EQ(FileUrl(std::string("/") + character + "x").text(), "file:///" + expected + "x");
  }
}

TEST(FileUrlText, EscapesEveryByteOfOtherCharacters) {
  EXPECT_EQ(FileUrl("/Größe €").text(), "file:///Gr%C3%B6%C3%9Fe%20%E2%82%AC");
}

TEST(FileUrlFromText, ReadsTheTextOfAUrl) {
  EXPECT_EQ(FileUrl::fromText("file:///Users/ida/My%20Harbour").path(), "/Users/ida/My Harbour");
}

TEST(FileUrlFromText, ReadsAPlainAbsolutePath) {
  EXPECT_EQ(FileUrl::fromText("/Users/ida/Harbour").path(), "/Users/ida/Harbour");
}

TEST(FileUrlFromText, DropsAFinalSlash) {
  EXPECT_EQ(FileUrl::fromText("file:///Users/ida/").path(), "/Users/ida");
  EXPECT_EQ(FileUrl::fromText("file:///").path(), "/");
}

TEST(FileUrlFromText, TakesHexadecimalDigitsOfEitherCase) {
  EXPECT_EQ(FileUrl::fromText("/%c3%B6%7a%7A").path(), "/özz");
  EXPECT_EQ(FileUrl::fromText("/%3B;").path(), "/;;");
}

TEST(FileUrlFromText, ReadsBackEveryByteThatAPathMayHold) {
  for (unsigned value = 1; value < 0x100; ++value) {
    const FileUrl url(std::string("/a") + static_cast<char>(value) + "b");
    EXPECT_EQ(FileUrl::fromText(url.text()), url) << value;
  }
}

TEST(FileUrlFromText, RejectsTextThatIsNotAnAbsolutePath) {
  for (const char* text : {"", "Harbour", "./a", "~/a", "file://", "file://host/a", "file:/a", "FILE:///a", "http:///a",
                           "http://host/a"}) {
    EXPECT_TRUE(FileUrl::fromText(text).empty()) << text;
  }
}

TEST(FileUrlFromText, RejectsCharactersThatAUrlHoldsOnlyInPercentForm) {
  for (const char* text : {"/a b", "/a\tb", "/a\nb", "/a\x7F", "/a\"b", "/a<b>", "/a\\b", "/a^b", "/a`b", "/a{b}",
                           "/a|b", "/a[b]", "/a?b", "/a#b", "/ö"}) {
    EXPECT_TRUE(FileUrl::fromText(text).empty()) << text;
  }
  EXPECT_TRUE(FileUrl::fromText(std::string_view("/a\0b", 4)).empty());
}

TEST(FileUrlFromText, RejectsMalformedPercentForms) {
  for (const char* text : {"/a%", "/a%4", "/a%zz", "/a%4z", "/a%z4", "/a%%41", "/a%00", "/a%-1", "/a%+4", "/a% 4"}) {
    EXPECT_TRUE(FileUrl::fromText(text).empty()) << text;
  }
}

TEST(FileUrlFromText, DoesNotReadBeyondItsEnd) {
  const std::vector<char> text = {'/', 'a', '%', '4', '1'};
  EXPECT_EQ(FileUrl::fromText({text.data(), 5}).path(), "/aA");
  for (const std::ptrdiff_t length : {3, 4}) {
    const std::vector<char> cut(text.begin(), text.begin() + length);
    EXPECT_TRUE(FileUrl::fromText({cut.data(), cut.size()}).empty());
  }
}

TEST(FileUrlLastPathComponent, IsWhatFollowsTheLastSlash) {
  EXPECT_EQ(FileUrl("/a/Foo.m").lastPathComponent(), "Foo.m");
  EXPECT_EQ(FileUrl("/a/de.lproj/").lastPathComponent(), "de.lproj");
  EXPECT_EQ(FileUrl("/a").lastPathComponent(), "a");
}

TEST(FileUrlLastPathComponent, IsASlashForTheRoot) {
  EXPECT_EQ(FileUrl("/").lastPathComponent(), "/");
}

struct ExtensionCase {
  const char* name;
  const char* extension;
  const char* withoutExtension;
};

TEST(FileUrlExtension, FollowsTheLastDot) {
  for (const ExtensionCase& wanted : std::initializer_list<ExtensionCase>{
           {"Foo.m", "m", "Foo"},
           {"Foo.mm", "mm", "Foo"},
           {"a.tar.gz", "gz", "a.tar"},
           {"de.lproj", "lproj", "de"},
           {"zh-Hans.lproj", "lproj", "zh-Hans"},
           {"Foo.M", "M", "Foo"},
           {"Foo", "", "Foo"},
           {"m", "", "m"},
           {"Foo.", "", "Foo."},
           {".m", "", ".m"},
           {".lproj", "", ".lproj"},
           {".hidden.m", "m", ".hidden"},
           {"a..m", "m", "a."},
       }) {
    const FileUrl url = FileUrl("/some.dir").appending(wanted.name);
    EXPECT_EQ(url.pathExtension(), wanted.extension) << wanted.name;
    EXPECT_EQ(url.lastPathComponentWithoutExtension(), wanted.withoutExtension) << wanted.name;
    EXPECT_EQ(extensionOfName(wanted.name), wanted.extension) << wanted.name;
  }
}

TEST(FileUrlExtension, IsNotTakenFromADirectoryAbove) {
  EXPECT_EQ(FileUrl("/de.lproj/Foo").pathExtension(), "");
}

TEST(FileUrlAppending, PutsOneSlashBetween) {
  EXPECT_EQ(FileUrl("/a").appending("b.m").path(), "/a/b.m");
  EXPECT_EQ(FileUrl("/").appending("b.m").path(), "/b.m");
  EXPECT_EQ(FileUrl("/a").appending("b/").path(), "/a/b");
}

TEST(FileUrlParent, IsTheDirectoryThatHoldsTheEntry) {
  EXPECT_EQ(FileUrl("/a/b/c.m").parent().path(), "/a/b");
  EXPECT_EQ(FileUrl("/a").parent().path(), "/");
}

TEST(FileUrlParent, OfTheRootIsTheRoot) {
  EXPECT_EQ(FileUrl("/").parent().path(), "/");
}

}  // namespace
}  // namespace glossmill
