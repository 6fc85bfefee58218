#include <gtest/gtest.h>

#include "timing/Samples.h"

namespace glossmill::bench {

namespace {

Samples samplesOf(std::initializer_list<double> seconds) {
  Samples samples;
  for (const double each : seconds) samples.add(each);
  return samples;
}

}  // namespace

TEST(Samples, TheMedianStandsInTheMiddleWhateverTheOrder) {
  EXPECT_EQ(samplesOf({5, 1, 3}).median(), 3);
  EXPECT_EQ(samplesOf({4, 1, 3, 2}).median(), 3);
  EXPECT_EQ(samplesOf({7}).median(), 7);
}

TEST(Samples, TheWorstIsTheLongest) {
  EXPECT_EQ(samplesOf({5, 9, 3}).worst(), 9);
}

TEST(Samples, NoneHaveNoTime) {
  EXPECT_EQ(Samples().count(), 0U);
  EXPECT_EQ(Samples().median(), 0);
  EXPECT_EQ(Samples().worst(), 0);
}

TEST(MostInOneSecond, CountsTheFullestSecondWhereverItBegins) {
  EXPECT_EQ(mostInOneSecond({0, 0.9, 1.1, 1.2, 1.8, 3.5}), 4U);
}

TEST(MostInOneSecond, LeavesOutWhatIsAWholeSecondLater) {
  EXPECT_EQ(mostInOneSecond({0, 1, 2}), 1U);
  EXPECT_EQ(mostInOneSecond({}), 0U);
}

}  // namespace glossmill::bench
