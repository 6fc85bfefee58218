#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "search/SimilarTexts.h"
#include "search/TextGrams.h"

namespace glossmill {
namespace {

using Texts = std::vector<std::string>;
using Founds = std::vector<SimilarTexts::Found>;

std::unique_ptr<SimilarTexts> similar(Texts texts) {
  const CancelFlag never;
  return SimilarTexts::of(std::move(texts), never);
}

std::vector<std::size_t> placesLike(const SimilarTexts& texts, std::string_view text, double least = 0.5,
                                    std::size_t most = 9) {
  std::vector<std::size_t> places;
  for (const SimilarTexts::Found& found : texts.like(text, least, most)) places.push_back(found.place);
  return places;
}

/// Compares the text with every other.
Founds likeByLookingAtAll(const Texts& texts, std::string_view text, double least) {
  Founds founds;
  for (std::size_t place = 0; place < texts.size(); ++place) {
    if (std::find(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(place), texts[place]) !=
        texts.begin() + static_cast<std::ptrdiff_t>(place)) {
      continue;
    }
    const double common = texts[place] == text ? 1 : std::min(likeness(gramsOf(texts[place]), gramsOf(text)), 0.999);
    if (common >= least) founds.push_back({place, common});
  }
  std::stable_sort(founds.begin(), founds.end(), [](const auto& a, const auto& b) { return a.likeness > b.likeness; });
  return founds;
}

Texts randomTexts(std::mt19937& random, std::size_t count) {
  const Texts words = {"open", "close", "the", "file", "files", "window", "Berth", "tide", "of", "a", "Größe", "潮"};
  Texts texts;
  for (std::size_t i = 0; i < count; ++i) {
    std::string text;
    for (std::size_t word = 0; word < 1 + random() % 5; ++word) text += words[random() % words.size()] + " ";
    texts.push_back(std::move(text));
  }
  return texts;
}

TEST(SimilarTexts, FindNothingInAnEmptyList) {
  const auto texts = similar({});
  EXPECT_TRUE(texts->like("Open", 0.1, 9).empty());
  EXPECT_TRUE(texts->like("", 0.1, 9).empty());
}

TEST(SimilarTexts, PutTheTextItselfInFrontOfTheSameTextInOtherCase) {
  const auto texts = similar({"OPEN FILE", "Open File", "Close"});
  const Founds founds = texts->like("Open File", 0.5, 9);
  ASSERT_EQ(founds.size(), 2U);
  EXPECT_EQ(founds[0], (SimilarTexts::Found{1, 1.0}));
  EXPECT_EQ(founds[1].place, 0U);
  EXPECT_LT(founds[1].likeness, 1);
}

TEST(SimilarTexts, ComeByLikenessAndThenInTheirOrder) {
  const auto texts = similar({"Open a file", "Open the window", "Open the file", "OPEN a file"});
  EXPECT_EQ(placesLike(*texts, "Open the file!"), (std::vector<std::size_t>{2, 0, 3, 1}));
}

TEST(SimilarTexts, AreNoMoreThanAreWanted) {
  const auto texts = similar({"Open 1", "Open 2", "Open 3"});
  EXPECT_EQ(placesLike(*texts, "Open 2", 0.1, 2), (std::vector<std::size_t>{1, 0}));
  EXPECT_TRUE(placesLike(*texts, "Open 2", 0.1, 0).empty());
}

TEST(SimilarTexts, NameEqualTextsOnceAndKnowAllTheirPlaces) {
  const auto texts = similar({"Open", "Quit", "Open", "Open"});
  EXPECT_EQ(placesLike(*texts, "Open"), (std::vector<std::size_t>{0}));
  EXPECT_EQ(texts->placesOf(0), (std::vector<std::size_t>{0, 2, 3}));
  EXPECT_EQ(texts->placesOf(2), (std::vector<std::size_t>{0, 2, 3}));
  EXPECT_EQ(texts->placesOf(1), (std::vector<std::size_t>{1}));
}

TEST(SimilarTexts, AreThoseThatAComparisonWithEveryTextGives) {
  std::mt19937 random(7);
  for (int round = 0; round < 20; ++round) {
    const Texts all = randomTexts(random, 60);
    const auto texts = similar(all);
    const std::string wanted = randomTexts(random, 1).front();
    EXPECT_EQ(texts->like(wanted, 0.6, all.size()), likeByLookingAtAll(all, wanted, 0.6)) << wanted;
  }
}

TEST(SimilarTexts, AreFoundByAVeryLongTextToo) {
  std::string text;
  for (int i = 0; i < 3000; ++i) text += "word" + std::to_string(i) + " ";
  const auto texts = similar({"word", text + "more", text});
  EXPECT_EQ(placesLike(*texts, text), (std::vector<std::size_t>{2, 1}));
}

TEST(SimilarTexts, AreNotGatheredAfterACancel) {
  CancelFlag canceled;
  canceled.set(true);
  EXPECT_EQ(SimilarTexts::of({"Open"}, canceled), nullptr);
}

}  // namespace
}  // namespace glossmill
