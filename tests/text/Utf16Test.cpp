#include <gtest/gtest.h>

#include "support/Ship.h"
#include "text/Utf16.h"

namespace glossmill {
namespace {

constexpr const char* kReplacement = "\xEF\xBF\xBD";

TEST(Utf16Length, CountsNothingInTheEmptyText) {
  EXPECT_EQ(utf16Length(""), 0U);
}

TEST(Utf16Length, CountsOneUnitForEachCharacterOfTheBasicPlane) {
  EXPECT_EQ(utf16Length("abc"), 3U);
  EXPECT_EQ(utf16Length("\xC3\xA4"), 1U);
  EXPECT_EQ(utf16Length("\xE2\x82\xAC"), 1U);
  EXPECT_EQ(utf16Length("\xEF\xBF\xBF"), 1U);
}

TEST(Utf16Length, CountsTwoUnitsForCharactersBeyondTheBasicPlane) {
  EXPECT_EQ(utf16Length("\xF0\x90\x80\x80"), 2U);
  EXPECT_EQ(utf16Length("\xF4\x8F\xBF\xBF"), 2U);
  EXPECT_EQ(utf16Length(std::string("a") + kShip + "\xC3\xA4"), 4U);
}

TEST(ClipUtf16, LeavesTextThatFits) {
  EXPECT_EQ(clipUtf16("", 0), "");
  EXPECT_EQ(clipUtf16("", 5), "");
  EXPECT_EQ(clipUtf16("abc", 3), "abc");
  EXPECT_EQ(clipUtf16("abc", 4), "abc");
  EXPECT_EQ(clipUtf16(kShip, 2), kShip);
}

TEST(ClipUtf16, TakesTheFirstUnits) {
  EXPECT_EQ(clipUtf16("abc", 0), "");
  EXPECT_EQ(clipUtf16("abc", 2), "ab");
}

TEST(ClipUtf16, CountsACharacterOfSeveralBytesOnce) {
  EXPECT_EQ(clipUtf16("\xC3\xA4\xE2\x82\xAC!", 1), "\xC3\xA4");
  EXPECT_EQ(clipUtf16("\xC3\xA4\xE2\x82\xAC!", 2), "\xC3\xA4\xE2\x82\xAC");
}

TEST(ClipUtf16, KeepsAPairThatEndsAtTheCut) {
  EXPECT_EQ(clipUtf16(std::string("a") + kShip + "b", 3), std::string("a") + kShip);
}

TEST(ClipUtf16, LeavesAReplacementForHalfAPair) {
  EXPECT_EQ(clipUtf16(kShip, 1), kReplacement);
  EXPECT_EQ(clipUtf16(std::string("a") + kShip + "b", 2), std::string("a") + kReplacement);
}

TEST(ClipUtf16, GivesAsManyUnitsAsWereAskedFor) {
  const std::string text = std::string("a\xC3\xA4") + kShip + "\xE2\x82\xAC" + kShip + kShip + "z";
  for (std::size_t units = 0; units <= utf16Length(text); ++units) {
    EXPECT_EQ(utf16Length(clipUtf16(text, units)), units);
  }
}

TEST(ClipUtf16, TakesAsManyUnitsOfLongTextsWhereverTheyStopBeingAscii) {
  for (std::size_t place = 0; place <= 90; ++place) {
    const std::string text = std::string(place, 'a') + "\xC3\xA4" + kShip + std::string(90, 'b');
    const std::string clipped = clipUtf16(text, 80);
    EXPECT_EQ(utf16Length(clipped), 80U) << place;
    const std::size_t same = place == 78 ? clipped.size() - 3 : clipped.size();  // there the ship is cut in half
    EXPECT_EQ(clipped.substr(0, same), text.substr(0, same)) << place;
  }
}

}  // namespace
}  // namespace glossmill
