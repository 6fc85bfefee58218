#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "scan/CallFinder.h"

namespace glossmill {
namespace {

constexpr std::string_view kCallName = "NSLocalizedString";
constexpr std::size_t kLookAhead = 64 * 1024;

TEST(CallFinder, GivesOneCallAfterTheOther) {
  const std::string text = "NSLocalizedString x nslocalizedstring";
  CallFinder finder(text);
  EXPECT_EQ(finder.nextBefore(text.size()), 0U);
  EXPECT_EQ(finder.nextBefore(text.size()), 20U);
  EXPECT_EQ(finder.nextBefore(text.size()), text.size());
  EXPECT_EQ(finder.nextBefore(text.size()), text.size());
}

TEST(CallFinder, KeepsACallBehindTheLimitForLater) {
  const std::string text = "x NSLocalizedString";
  CallFinder finder(text);
  EXPECT_EQ(finder.nextBefore(1), 1U);
  EXPECT_EQ(finder.nextBefore(2), 2U);
  EXPECT_EQ(finder.nextBefore(3), 2U);
  EXPECT_EQ(finder.nextBefore(3), 3U);
}

TEST(CallFinder, FindsACallAtTheEdgeOfAWindow) {
  for (std::size_t place = kLookAhead - 20; place < kLookAhead + 3; ++place) {
    const std::string text =
        std::string(place, 'z').append(kCallName) + ";" + std::string(place, 'z').append(kCallName);
    CallFinder finder(text);
    ASSERT_EQ(finder.nextBefore(text.size()), place);
    ASSERT_EQ(finder.nextBefore(text.size()), 2 * place + kCallName.size() + 1);
    ASSERT_EQ(finder.nextBefore(text.size()), text.size());
  }
}

TEST(CallFinder, FindsNothingInAnEmptyText) {
  EXPECT_EQ(CallFinder("").nextBefore(0), 0U);
}

}  // namespace
}  // namespace glossmill
