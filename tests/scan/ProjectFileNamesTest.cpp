#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "scan/ProjectFileNames.h"

namespace glossmill {
namespace {

bool mentions(std::string_view text, std::string_view name) {
  return ProjectFileNames(text).mentions(name);
}

/// Texts and names over a few letters, so that names are everywhere and almost everywhere.
class RandomNames {
 public:
  explicit RandomNames(std::string_view alphabet) : m_alphabet(alphabet) {}

  std::string text(std::size_t longest) {
    std::string text;
    for (std::size_t left = m_random() % (longest + 1); left > 0; --left) text += letter();
    return text;
  }

  /// Now and then a part of `text`.
  std::string nameFor(const std::string& text) {
    if (m_random() % 2 == 0 || text.empty()) return this->text(20) + ".m";
    const std::size_t start = m_random() % text.size();
    return text.substr(start, m_random() % 30) + ".m";
  }

 private:
  char letter() { return m_alphabet[m_random() % m_alphabet.size()]; }

  std::string_view m_alphabet;
  std::mt19937 m_random{11};
};

TEST(ProjectFileNames, MentionsANameThatStandsInTheText) {
  EXPECT_TRUE(mentions("/* Foo.m in Sources */", "Foo.m"));
  EXPECT_TRUE(mentions("Foo.m", "Foo.m"));
}

TEST(ProjectFileNames, DoesNotMentionOtherNames) {
  EXPECT_FALSE(mentions("/* Foo.m in Sources */", "Bar.m"));
  EXPECT_FALSE(mentions("/* Foo.m in Sources */", "FooFoo.m"));
  EXPECT_FALSE(mentions("Foo.h Foo m Foo,m", "Foo.m"));
}

TEST(ProjectFileNames, MindsTheCase) {
  EXPECT_FALSE(mentions("foo.m FOO.m Foo.M", "Foo.m"));
}

TEST(ProjectFileNames, MentionsANameInsideALongerOne) {
  EXPECT_TRUE(mentions("/* MyFoo.m in Sources */", "Foo.m"));
  EXPECT_TRUE(mentions("/* Foo.mm in Sources */", "Foo.m"));
  EXPECT_TRUE(mentions("/* MyFoo.markdown */", "Foo.m"));
  EXPECT_TRUE(mentions("/* a.m.m */", "a.m.m"));
}

TEST(ProjectFileNames, MentionsNothingInAnEmptyText) {
  EXPECT_FALSE(mentions("", "Foo.m"));
  EXPECT_FALSE(mentions("", "m.m"));
}

TEST(ProjectFileNames, NeedsTheWholeNameInFrontOfTheExtension) {
  EXPECT_FALSE(mentions("oo.m", "Foo.m"));
  EXPECT_FALSE(mentions(".m", "Foo.m"));
  EXPECT_FALSE(mentions("Foo", "Foo.m"));
  EXPECT_FALSE(mentions("Foo.", "Foo.m"));
}

TEST(ProjectFileNames, FindsNamesWithBlanksAndOtherScripts) {
  const std::string text =
      "\"My Boat.m\" \"H\xC3\xA4"
      "fen.m\"";
  EXPECT_TRUE(mentions(text, "My Boat.m"));
  EXPECT_TRUE(mentions(text, "Boat.m"));
  EXPECT_TRUE(mentions(text,
                       "H\xC3\xA4"
                       "fen.m"));
  EXPECT_FALSE(mentions(text, "Hafen.m"));
}

TEST(ProjectFileNames, TellsZeroBytesInTheTextFromItsStart) {
  using namespace std::string_literals;
  EXPECT_TRUE(mentions("\0b.m"s, "b.m"));
  EXPECT_FALSE(mentions("\0b.m"s, "ab.m"));
  EXPECT_TRUE(mentions("ab.m \0b.m \0\0b.m"s, "ab.m"));
}

TEST(ProjectFileNames, TellsLongNamesApartByTheirFirstLetter) {
  const std::string tail = std::string(252, 'x') + ".m";
  const std::string text = std::string(300, 'a') + tail + "\n" + std::string(300, 'b') + tail;
  EXPECT_TRUE(mentions(text, "a" + tail));
  EXPECT_TRUE(mentions(text, "b" + tail));
  EXPECT_FALSE(mentions(text, "c" + tail));
  EXPECT_TRUE(mentions(text, tail));
}

TEST(ProjectFileNames, FindsNamesWhoseEndIsTheStartOfTheText) {
  const std::string end = "abcdefghijklm.m";
  RandomNames random("xyz");
  for (int round = 0; round < 200; ++round) {
    std::string text = end;
    const std::string letters = random.text(100);
    for (const char letter : letters) text += letter + end;
    const ProjectFileNames names(text);
    for (const char letter : std::string_view("wxyz")) {
      ASSERT_EQ(names.mentions(letter + end), letters.find(letter) != std::string::npos) << letter << " in " << letters;
    }
  }
}

TEST(ProjectFileNames, AgreesWithAPlainSearchOnRandomTexts) {
  for (const std::string_view alphabet : {"a.m ", "a.m", "ab.m", "am..", "aaaaaaaaaaaab.m", "\xC3\x01.m"}) {
    RandomNames random(alphabet);
    for (int round = 0; round < 300; ++round) {
      const std::string text = random.text(200);
      const ProjectFileNames names(text);
      for (int question = 0; question < 20; ++question) {
        const std::string name = random.nameFor(text);
        ASSERT_EQ(names.mentions(name), text.find(name) != std::string::npos) << name << " in " << text;
      }
    }
  }
}

TEST(ProjectFileNames, AgreesWithAPlainSearchOnLongStretchesOfOneLetter) {
  std::string text;
  for (std::size_t length : {0U, 1U, 7U, 8U, 9U, 20U, 253U, 254U, 255U, 300U, 300U})
    text += std::string(length, 'a') + ".m b";
  const ProjectFileNames names(text);
  for (std::size_t length = 0; length <= 253; ++length) {
    for (const std::string first : {"", "a", "b", " b", ".m b"}) {
      const std::string name = first + std::string(length - std::min(length, first.size()), 'a') + ".m";
      ASSERT_EQ(names.mentions(name), text.find(name) != std::string::npos) << name;
    }
  }
}

}  // namespace
}  // namespace glossmill
