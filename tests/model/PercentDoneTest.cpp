#include <gtest/gtest.h>

#include "model/PercentDone.h"

namespace glossmill {
namespace {

TEST(PercentDone, IsRoundedDown) {
  EXPECT_EQ(percentDone(3, 3), 0);
  EXPECT_EQ(percentDone(3, 2), 33);
  EXPECT_EQ(percentDone(3, 1), 66);
}

TEST(PercentDone, IsAHundredOnlyForWhatIsQuiteDone) {
  EXPECT_EQ(percentDone(1000, 1), 99);
  EXPECT_EQ(percentDone(1000, 0), 100);
}

TEST(PercentDone, IsAHundredWithNothingToDo) {
  EXPECT_EQ(percentDone(0, 0), 100);
}

}  // namespace
}  // namespace glossmill
