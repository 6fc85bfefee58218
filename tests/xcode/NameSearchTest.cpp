#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "xcode/NameSearch.h"
#include "xcode/SourceText.h"

namespace glossmill {
namespace {

using Names = std::vector<std::string>;

/// Each hit as `place:name`.
std::string hitsOf(const NameSearch& search, const Names& names, std::string_view text) {
  std::string hits;
  for (NameSearch::Hit hit = search.next(text, 0); hit.begin < text.size(); hit = search.next(text, hit.end)) {
    EXPECT_EQ(text.substr(hit.begin, hit.end - hit.begin), names[hit.name]);
    hits += std::to_string(hit.begin) + ":" + names[hit.name] + " ";
  }
  return hits;
}

/// The same, word by word.
std::string expectedHits(const Names& names, std::string_view text) {
  std::string hits;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = plainWordEnd(text, at);
    const std::string word(text.substr(at, end - at));
    if (std::find(names.begin(), names.end(), word) != names.end()) hits += std::to_string(at) + ":" + word + " ";
    at = std::max(end, at + 1);
  }
  return hits;
}

void expectHits(const Names& names, std::string_view text) {
  EXPECT_EQ(hitsOf(NameSearch(names), names, text), expectedHits(names, text)) << text;
}

TEST(NameSearch, FindsWholeWordsInTheirCase) {
  const Names names = {"LocalizedText", "Text"};
  expectHits(names, "LocalizedText(Text) text LocalizedTexts MyLocalizedText Text");
  EXPECT_EQ(hitsOf(NameSearch(names), names, "aText Text,LocalizedText"), "6:Text 11:LocalizedText ");
}

TEST(NameSearch, FindsNothingWithoutNamesOrText) {
  EXPECT_EQ(NameSearch().next("abc", 0).begin, 3U);
  EXPECT_EQ(NameSearch({"a"}).next("", 0).begin, 0U);
  EXPECT_EQ(NameSearch({"abc"}).next("ab", 0).begin, 2U);
}

TEST(NameSearch, BeginsWhereItIsTold) {
  const NameSearch search({"abc"});
  EXPECT_EQ(search.next("abc abc", 0).begin, 0U);
  EXPECT_EQ(search.next("abc abc", 3).begin, 4U);
  EXPECT_EQ(search.next("abc abc", 7).begin, 7U);
}

TEST(NameSearch, TellsTheFirstOfEqualNames) {
  const NameSearch search({"b", "a", "b", "c"});
  EXPECT_EQ(search.next("b", 0).name, 0U);
  EXPECT_EQ(search.next("c", 0).name, 3U);
  EXPECT_EQ(search.find("c"), 3U);
  EXPECT_EQ(search.find("d"), std::nullopt);
}

TEST(NameSearch, FindsANameAtEveryPlaceAndDistanceFromTheEnd) {
  for (const Names& names :
       {Names{"SomeName"}, Names{"x"}, Names{"ab", "cdefghij", "k1", "lm_n", "opqrstuvw", "xyz"}}) {
    for (std::size_t before = 0; before < 40; ++before) {
      for (std::size_t after = 0; after < 24; ++after) {
        for (const std::string& name : names) {
          expectHits(names, std::string(before, ' ') + name + std::string(after, '.'));
        }
      }
    }
  }
}

TEST(NameSearch, FindsWhatASearchWordByWordFinds) {
  std::mt19937 random(20240613);
  const auto below = [&random](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
  };
  const auto word = [&below](std::size_t longest) {
    std::string letters;
    for (std::size_t left = below(longest) + 1; left > 0; --left) letters += "abcS_1z"[below(7)];
    return letters;
  };
  for (int round = 0; round < 1000; ++round) {
    Names names;
    for (std::size_t left = below(9) + 1; left > 0; --left) names.push_back(word(12));
    std::string text;
    for (std::size_t left = below(60); left > 0; --left) {
      text += below(3) == 0 ? names[below(names.size())] : word(14);
      if (below(8) != 0) text += " (\n."[below(4)];
    }
    expectHits(names, text);
  }
}

}  // namespace
}  // namespace glossmill
