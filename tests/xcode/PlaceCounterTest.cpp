#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "xcode/PlaceCounter.h"

namespace glossmill {

void PrintTo(const TextPlace& place, std::ostream* out) {
  *out << place.line << ":" << place.column;
}

namespace {

using Place = TextPlace;

TEST(PlaceCounter, CountsFromOne) {
  EXPECT_EQ(PlaceCounter("").at(0), (Place{1, 1}));
  EXPECT_EQ(PlaceCounter("abc").at(2), (Place{1, 3}));
}

TEST(PlaceCounter, EndsLinesWithLfCrAndCrLf) {
  PlaceCounter counter("a\nb\rc\r\nd\n\re");
  EXPECT_EQ(counter.at(2), (Place{2, 1}));
  EXPECT_EQ(counter.at(4), (Place{3, 1}));
  EXPECT_EQ(counter.at(7), (Place{4, 1}));
  EXPECT_EQ(counter.at(10), (Place{6, 1}));
}

TEST(PlaceCounter, CountsColumnsInUtf16Units) {
  const std::string text = "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x9A\xA2x y";
  PlaceCounter counter(text);
  EXPECT_EQ(counter.at(text.find('x')), (Place{1, 5}));
  EXPECT_EQ(counter.at(text.find('y')), (Place{1, 7}));
}

TEST(PlaceCounter, CountsAtEveryPlaceLikeOneByteAfterTheOther) {
  const std::string line = "abc\r\n\n\rdefghijklmn\n\n\nopqr\rstuvwxyz\r\n";
  const std::string text = line + line + line;
  for (std::size_t first = 0; first <= text.size(); ++first) {
    Place expected{1, 1};
    PlaceCounter counter(text);
    for (std::size_t at = 0; at < text.size(); ++at) {
      if (at >= first && text[at] >= 'a') {
        EXPECT_EQ(counter.at(at), expected) << at << " from " << first;
      }
      const bool ends = text[at] == '\n' || (text[at] == '\r' && text.substr(at + 1, 1) != "\n");
      expected = ends ? Place{expected.line + 1, 1} : Place{expected.line, expected.column + 1};
    }
  }
}

}  // namespace
}  // namespace glossmill
