#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "scan/CallSearch.h"

namespace glossmill {
namespace {

constexpr std::string_view kWord = "NSLocalizedString";

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte; });
  return text;
}

TEST(CallSearch, FindsTheWordAtEveryPlace) {
  for (const char filler : {' ', 'z', 'Z', 'n', '\xC3'}) {
    for (std::size_t place = 0; place < 200; ++place) {
      const std::string text = std::string(place, filler) + std::string(kWord) + std::string(70, filler);
      ASSERT_EQ(findLocalizedStringCall(text, 0), place) << "after " << filler;
    }
  }
}

TEST(CallSearch, FindsTheWordAtTheEndOfTheText) {
  for (std::size_t place = 0; place < 200; ++place) {
    const std::string text = std::string(place, 'z') + std::string(kWord);
    ASSERT_EQ(findLocalizedStringCall(text, 0), place);
    ASSERT_EQ(findLocalizedStringCall(text.substr(0, text.size() - 1), 0), text.size() - 1);
  }
}

TEST(CallSearch, FindsTheWordInAnyCase) {
  EXPECT_EQ(findLocalizedStringCall("nslocalizedstring", 0), 0U);
  EXPECT_EQ(findLocalizedStringCall("NSLOCALIZEDSTRING", 0), 0U);
  EXPECT_EQ(findLocalizedStringCall("nSlOcAlIzEdStRiNg", 0), 0U);
}

TEST(CallSearch, GivesTheLengthOfATextWithoutTheWord) {
  for (const std::string_view text : {"", "ze", "NSLocalized String",
                                      "nslocali\x9A"
                                      "edstring",
                                      "NSLocalizedStrin"}) {
    EXPECT_EQ(findLocalizedStringCall(text, 0), text.size()) << text;
  }
}

TEST(CallSearch, ComparesEveryLetterOfTheWord) {
  for (std::size_t place = 0; place < kWord.size(); ++place) {
    for (const char other : {'q', '@', '\0', '\xEE'}) {
      std::string text(kWord);
      text[place] = other;
      EXPECT_EQ(findLocalizedStringCall(text, 0), text.size()) << text;
    }
  }
}

TEST(CallSearch, LooksFromTheGivenPlaceOn) {
  const std::string text = std::string(kWord) + std::string(kWord);
  EXPECT_EQ(findLocalizedStringCall(text, 0), 0U);
  EXPECT_EQ(findLocalizedStringCall(text, 1), kWord.size());
  EXPECT_EQ(findLocalizedStringCall(text, kWord.size()), kWord.size());
  EXPECT_EQ(findLocalizedStringCall(text, kWord.size() + 1), text.size());
  EXPECT_EQ(findLocalizedStringCall(text, text.size()), text.size());
}

TEST(CallSearch, AgreesWithAPlainSearchOnRandomTexts) {
  std::mt19937 random(1);
  for (int round = 0; round < 5000; ++round) {
    std::string text;
    for (std::size_t left = random() % 40; left > 0; --left) {
      const std::size_t length = random() % 4 == 0 ? kWord.size() : random() % kWord.size();
      text += kWord.substr(random() % 3 == 0 ? random() % kWord.size() : 0, length);
      if (random() % 2 == 0) text = lowerCase(text);
    }
    const std::string lowered = lowerCase(text);
    for (std::size_t from = 0; from <= text.size(); ++from) {
      const std::size_t expected = std::min(lowered.find("nslocalizedstring", from), text.size());
      ASSERT_EQ(findLocalizedStringCall(text, from), expected) << text << " from " << from;
    }
  }
}

}  // namespace
}  // namespace glossmill
