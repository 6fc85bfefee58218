#include <gtest/gtest.h>

#include <string>

#include "scan/ScannedSource.h"
#include "support/Ship.h"

namespace glossmill {
namespace {

constexpr const char* kCall = "NSLocalizedString";

/// The excerpt of a bad call that goes on with `rest`.
std::string excerptOf(const std::string& rest) {
  const ScannedSource found(kCall + rest);
  EXPECT_EQ(found.badCalls.size(), 1U);
  return found.badCalls.empty() ? "" : found.badCalls.front();
}

TEST(SourceScannerExcerpt, EndsAfter80Characters) {
  EXPECT_EQ(excerptOf(std::string(100, 'x')), kCall + std::string(63, 'x'));
}

TEST(SourceScannerExcerpt, EndsAtTheEndOfTheText) {
  EXPECT_EQ(excerptOf(std::string(62, 'x')), kCall + std::string(62, 'x'));
  EXPECT_EQ(excerptOf(std::string(63, 'x')), kCall + std::string(63, 'x'));
  EXPECT_EQ(excerptOf(std::string(64, 'x')), kCall + std::string(63, 'x'));
}

TEST(SourceScannerExcerpt, KeepsLineEnds) {
  EXPECT_EQ(excerptOf("\r\n(nil\n)"), "NSLocalizedString\r\n(nil\n)");
}

TEST(SourceScannerExcerpt, IsCountedInUtf16Units) {
  std::string umlauts;
  for (int i = 0; i < 70; ++i) umlauts += "ö";
  EXPECT_EQ(excerptOf(umlauts), kCall + umlauts.substr(0, 63 * 2));
  EXPECT_EQ(excerptOf(std::string(61, 'x') + kShip + "yz"), kCall + std::string(61, 'x') + kShip);
}

TEST(SourceScannerExcerpt, EndsInAReplacementCharacterWhenItCutsASurrogatePair) {
  EXPECT_EQ(excerptOf(std::string(62, 'x') + kShip + "yz"), kCall + std::string(62, 'x') + "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace glossmill
