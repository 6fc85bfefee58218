#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/BriefYield.h"

namespace glossmill {
namespace {

TEST(BriefYield, AsksOnceForWhatIsReady) {
  BriefYield yield;
  int questions = 0;
  EXPECT_TRUE(yield.until([&questions] { return ++questions > 0; }));
  EXPECT_EQ(questions, 1);
}

TEST(BriefYield, GivesUpWhenNothingComes) {
  BriefYield yield;
  int questions = 0;
  const auto never = [&questions] { return ++questions < 0; };
  EXPECT_FALSE(yield.until(never));
  EXPECT_FALSE(yield.until(never));
  EXPECT_GE(questions, 2);
}

TEST(BriefYield, AsksAtLeastOnceHoweverOftenYieldsWereLong) {
  BriefYield yield;
  const auto slow = [] {
    std::this_thread::sleep_for(std::chrono::microseconds(200));
    return false;
  };
  for (int times = 0; times < 20; ++times) EXPECT_FALSE(yield.until(slow));
  EXPECT_TRUE(yield.until([] { return true; }));
}

TEST(BriefYield, SeesInTheEndWhatAnotherThreadDoes) {
  BriefYield yield;
  std::atomic<bool> done{false};
  std::thread other([&done] { done = true; });
  while (!yield.until([&done] { return done.load(); })) std::this_thread::yield();
  other.join();
  EXPECT_TRUE(done);
}

}  // namespace
}  // namespace glossmill
