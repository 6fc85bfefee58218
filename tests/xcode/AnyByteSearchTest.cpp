#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "xcode/AnyByteSearch.h"

namespace glossmill {
namespace {

TEST(AnyByteSearch, FindsTheFirstOfItsBytesFromEveryPlace) {
  for (const char byte : std::string("abcd")) {
    for (std::size_t place = 0; place < 40; ++place) {
      std::string text(40, '-');
      text[place] = byte;
      text.back() = 'd';
      for (std::size_t from = 0; from <= 41; ++from) {
        const std::size_t expected = std::min(text.find_first_of("abcd", from), text.size());
        EXPECT_EQ((findAnyOf<'a', 'b', 'c', 'd'>(text, from)), expected) << text << " from " << from;
      }
    }
  }
}

TEST(AnyByteSearch, FindsNothingWhereNothingIs) {
  EXPECT_EQ((findAnyOf<'a', 'b', 'c', 'd'>("", 0)), 0U);
  EXPECT_EQ((findAnyOf<'a', 'b', 'c', 'd'>(std::string(37, '-'), 3)), 37U);
}

}  // namespace
}  // namespace glossmill
