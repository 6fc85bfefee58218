#include <gtest/gtest.h>

#include <string>

#include "text/ByteSearch.h"

namespace glossmill {
namespace {

std::size_t naiveFind(std::string_view text, std::string_view wanted, std::size_t from) {
  std::size_t at = from;
  while (at < text.size() && wanted.find(text[at]) == std::string_view::npos) ++at;
  return at < text.size() ? at : text.size();
}

/// Every start in every text that holds `byte` once, at every place, in texts of 0 to `longest` bytes.
template <typename Check>
void forEveryPlace(char filler, char byte, std::size_t longest, Check check) {
  for (std::size_t length = 0; length <= longest; ++length) {
    for (std::size_t place = 0; place <= length; ++place) {
      std::string text(length, filler);
      if (place < length) text[place] = byte;
      for (std::size_t from = 0; from <= length + 1; ++from) check(text, from);
    }
  }
}

TEST(FindByte, FindsTheFirstOneAtOrAfterTheStart) {
  forEveryPlace('a', '"', 20, [](const std::string& text, std::size_t from) {
    EXPECT_EQ(findByte(text, '"', from), naiveFind(text, "\"", from)) << text << " from " << from;
  });
}

TEST(FindByte, FindsNothingInTheEmptyText) {
  EXPECT_EQ(findByte({}, 'a', 0), 0U);
}

TEST(FindByte, FindsNothingWhenTheStartIsFarBeyondTheEnd) {
  EXPECT_EQ(findByte("aaaaaaaaa", 'a', std::string_view::npos), 9U);
}

TEST(FindEither, FindsOneByteAtEveryAlignment) {
  forEveryPlace('a', '"', 35, [](const std::string& text, std::size_t from) {
    EXPECT_EQ(findEither(text, '"', '\n', from), naiveFind(text, "\"\n", from)) << text << " from " << from;
    EXPECT_EQ(findEither(text, '\n', '"', from), naiveFind(text, "\"\n", from)) << text << " from " << from;
  });
}

TEST(FindEither, FindsWhicheverOfTwoComesFirst) {
  constexpr std::size_t kLength = 18;
  for (std::size_t quote = 0; quote < kLength; ++quote) {
    for (std::size_t lineFeed = 0; lineFeed < kLength; ++lineFeed) {
      std::string text(kLength, 'a');
      text[quote] = '"';
      text[lineFeed] = '\n';
      EXPECT_EQ(findEither(text, '"', '\n', 0), std::min(quote, lineFeed));
    }
  }
}

TEST(FindEither, IsNotMisledByBytesNextToTheWantedOnes) {
  // One less, one more, the high bit and zero are the values a word-at-a-time search could take for a hit.
  for (const char neighbour : {'!', '#', '\x09', '\x0B', '\xA2', '\x8A', '\0', '\x01', '\x80', '\xFF'}) {
    forEveryPlace(neighbour, '"', 17, [](const std::string& text, std::size_t from) {
      EXPECT_EQ(findEither(text, '"', '\n', from), naiveFind(text, "\"\n", from));
    });
  }
}

TEST(FindEither, FindsBytesThatAreNotAscii) {
  forEveryPlace('\x7F', '\xFF', 17, [](const std::string& text, std::size_t from) {
    EXPECT_EQ(findEither(text, '\xFF', '\0', from), naiveFind(text, std::string_view("\xFF\0", 2), from));
  });
}

TEST(FindEither, FindsNothingInTheEmptyText) {
  EXPECT_EQ(findEither({}, 'a', 'b', 0), 0U);
}

TEST(FindEither, FindsNothingWhenTheStartIsFarBeyondTheEnd) {
  EXPECT_EQ(findEither(std::string(64, 'a'), 'a', 'b', std::string_view::npos - 4), 64U);
}

}  // namespace
}  // namespace glossmill
