#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

#include "xcode/JobsInOrder.h"

namespace glossmill {
namespace {

constexpr std::size_t kMany = 2000;
constexpr std::size_t kSmall = 100;              // bytes
constexpr std::size_t kLarge = 1024UL * 1024UL;  // bytes

struct Squared {
  std::size_t number = 0;
  std::size_t bytesRead = 0;
};

JobsInOrder<Squared>::Job squares(std::size_t bytes) {
  return [bytes](std::size_t number) { return Squared{number * number, bytes}; };
}

TEST(JobsInOrder, GivesTheResultsInTheOrderOfTheNumbers) {
  JobsInOrder<Squared> jobs(kMany, squares(kLarge));
  for (std::size_t number = 0; number < kMany; ++number) ASSERT_EQ(jobs.next().number, number * number);
  EXPECT_TRUE(jobs.hasSecond());
}

TEST(JobsInOrder, DoesEachJobOnce) {
  std::vector<std::atomic<int>> done(kMany);
  JobsInOrder<Squared> jobs(kMany, [&done](std::size_t number) {
    ++done[number];
    return Squared{number, kLarge};
  });
  for (std::size_t number = 0; number < kMany; ++number) jobs.next();
  for (const std::atomic<int>& times : done) ASSERT_EQ(times, 1);
}

TEST(JobsInOrder, NoSecondThreadStartsWhereThereIsLittleToRead) {
  JobsInOrder<Squared> jobs(kMany, squares(kSmall));
  for (std::size_t number = 0; number < kMany; ++number) jobs.next();
  EXPECT_FALSE(jobs.hasSecond());
}

TEST(JobsInOrder, NoSecondThreadStartsForTheLastJob) {
  JobsInOrder<Squared> jobs(2, squares(kLarge));
  jobs.next();
  jobs.next();
  EXPECT_FALSE(jobs.hasSecond());
}

TEST(JobsInOrder, SaysWhatTheSecondThreadMayDoBeforeItDoesAny) {
  std::vector<std::size_t> announced;
  std::atomic<bool> isAnnounced = false;
  std::atomic<int> tooEarly = 0;
  const std::thread::id self = std::this_thread::get_id();
  JobsInOrder<Squared> jobs(
      kMany,
      [&](std::size_t number) {
        if (std::this_thread::get_id() != self && !isAnnounced) ++tooEarly;
        return Squared{number, kLarge};
      },
      [&](std::size_t first) {
        announced.push_back(first);
        isAnnounced = true;
      });
  for (std::size_t number = 0; number < kMany; ++number) jobs.next();
  EXPECT_EQ(announced, (std::vector<std::size_t>{1}));
  EXPECT_EQ(tooEarly, 0);
}

TEST(JobsInOrder, IsNotFarAheadOfWhoTakesTheResults) {
  std::atomic<std::size_t> taken = 0;
  std::atomic<std::size_t> farthest = 0;
  JobsInOrder<Squared> jobs(kMany, [&](std::size_t number) {
    const std::size_t ahead = number - std::min<std::size_t>(number, taken);
    if (ahead > farthest) farthest = ahead;
    return Squared{number, kLarge};
  });
  for (std::size_t number = 0; number < kMany; ++number) {
    jobs.next();
    ++taken;
  }
  EXPECT_LE(farthest, JobTurns::kPlaces);
}

TEST(JobsInOrder, WhatAJobThrowsComesInItsTurn) {
  JobsInOrder<Squared> jobs(kMany, [](std::size_t number) {
    if (number == 70) throw std::runtime_error("seventy");
    return Squared{number, kLarge};
  });
  for (std::size_t number = 0; number < 70; ++number) ASSERT_EQ(jobs.next().number, number);
  EXPECT_THROW(jobs.next(), std::runtime_error);
}

TEST(JobsInOrder, MayBeLeftBeforeItsEnd) {
  for (std::size_t taken = 0; taken < 40; ++taken) {
    JobsInOrder<Squared> jobs(kMany, squares(kLarge));
    for (std::size_t number = 0; number < taken; ++number) ASSERT_EQ(jobs.next().number, number * number);
  }
}

TEST(JobsInOrder, WithoutJobsThereIsNothingToWaitFor) {
  const JobsInOrder<Squared> jobs(0, squares(kLarge));
  EXPECT_FALSE(jobs.hasSecond());
}

}  // namespace
}  // namespace glossmill
