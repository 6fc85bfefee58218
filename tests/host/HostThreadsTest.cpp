#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <new>
#include <semaphore>
#include <stdexcept>
#include <string>
#include <thread>

#include "host/HostThreads.h"

namespace glossmill {
namespace {

TEST(HostThreads, KnowsTheThreadThatMadeItAsTheMainThread) {
  HostThreads threads;
  bool mainInJob = true;
  bool mainInHop = false;
  threads.performInBackground([&] {
    mainInJob = threads.isMainThread();
    threads.performOnMainThreadAndWait([&] { mainInHop = threads.isMainThread(); });
  });
  threads.runUntilIdle();
  EXPECT_TRUE(threads.isMainThread());
  EXPECT_FALSE(mainInJob);
  EXPECT_TRUE(mainInHop);
}

TEST(HostThreads, DoesWorkOfTheMainThreadAtOnce) {
  HostThreads threads;
  bool done = false;
  threads.performOnMainThreadAndWait([&done] { done = true; });
  EXPECT_TRUE(done);
}

TEST(HostThreads, AJobGoesOnOnlyAfterItsHop) {
  HostThreads threads;
  std::string log;
  threads.performInBackground([&] {
    for (int hop = 0; hop < 100; ++hop) {
      threads.performOnMainThreadAndWait([&log] { log += 'm'; });
      log += 'j';
    }
  });
  threads.runUntilIdle();
  std::string expected;
  for (int hop = 0; hop < 100; ++hop) expected += "mj";
  EXPECT_EQ(log, expected);
}

TEST(HostThreads, AHopOfTheFirstPhaseMayStartTheSecond) {
  HostThreads threads;
  std::string log;
  threads.performInBackground([&] {
    log += "one ";
    threads.performOnMainThreadAndWait([&] {
      log += "hand-off ";
      threads.performInBackground([&] { threads.performOnMainThreadAndWait([&log] { log += "two"; }); });
    });
  });
  threads.runUntilIdle();
  EXPECT_EQ(log, "one hand-off two");
  EXPECT_EQ(threads.jobsRunning(), 0);
}

TEST(HostThreads, WhatAJobThrowsIsThrownOnTheMainThread) {
  HostThreads threads;
  threads.performInBackground([] { throw std::bad_alloc(); });
  EXPECT_THROW(threads.runUntilIdle(), std::bad_alloc);
  threads.runUntilIdle();
  EXPECT_EQ(threads.jobsRunning(), 0);
}

TEST(HostThreads, AJobGoesOnWhenItsHopHasThrown) {
  HostThreads threads;
  bool wentOn = false;
  threads.performInBackground([&] {
    threads.performOnMainThreadAndWait([] { throw std::bad_alloc(); });
    wentOn = true;
  });
  EXPECT_THROW(threads.runUntilIdle(), std::bad_alloc);
  threads.runUntilIdle();
  EXPECT_TRUE(wentOn);
}

TEST(HostThreads, NobodyHearsOfWhatAJobThrowsAfterJoiningAll) {
  HostThreads threads;
  std::binary_semaphore mayThrow(0);
  threads.performInBackground([&mayThrow] {
    mayThrow.acquire();
    throw std::bad_alloc();
  });
  threads.mailbox().close();
  mayThrow.release();
  threads.joinAll();
  EXPECT_EQ(threads.jobsRunning(), 0);
}

TEST(HostThreads, CountsAJobUntilItHasEnded) {
  HostThreads threads;
  std::binary_semaphore mayEnd{0};
  threads.performInBackground([&mayEnd] { mayEnd.acquire(); });
  EXPECT_EQ(threads.jobsRunning(), 1);
  mayEnd.release();
  threads.runUntilIdle();
  EXPECT_EQ(threads.jobsRunning(), 0);
}

TEST(HostThreads, ReturnsAtOnceWithoutAJob) {
  HostThreads threads;
  int ticks = 0;
  threads.runUntilIdle([&ticks] { ++ticks; });
  EXPECT_EQ(ticks, 0);
}

TEST(HostThreads, TicksWhileAJobKeepsToItself) {
  HostThreads threads;
  std::binary_semaphore mayEnd{0};
  threads.performInBackground([&mayEnd] { mayEnd.acquire(); });
  int ticks = 0;
  threads.runUntilIdle([&] {
    if (++ticks == 2) mayEnd.release();
  });
  EXPECT_GE(ticks, 2);
}

TEST(HostThreads, TicksWhileAJobNeverStopsHopping) {
  HostThreads threads;
  std::atomic<bool> canceled{false};
  threads.performInBackground([&] {
    while (!canceled) threads.performOnMainThreadAndWait([] {});
  });
  threads.runUntilIdle([&canceled] { canceled = true; });
  EXPECT_TRUE(canceled);
}

TEST(HostThreads, JobsShareTheRoleOfTheMainThreadWithItsTicks) {
  constexpr int kJobs = 3;
  HostThreads threads;
  std::string log;  // touched only with the role
  std::atomic<bool> enough{false};
  for (int job = 0; job < kJobs; ++job) {
    threads.performInBackground([&] {
      while (!enough) {
        threads.performOnMainThreadAndWait([&] {
          EXPECT_TRUE(threads.isMainThread());
          log += 'w';
        });
      }
    });
  }
  int ticks = 0;
  threads.runUntilIdle([&] {
    EXPECT_TRUE(threads.isMainThread());
    log += 't';
    if (++ticks == 4) enough = true;
  });
  EXPECT_TRUE(threads.isMainThread());
  EXPECT_EQ(std::count(log.begin(), log.end(), 't'), ticks);
  EXPECT_GT(std::count(log.begin(), log.end(), 'w'), kJobs);
}

TEST(HostThreads, AJobDoesItsOwnHopsWhileTheMainThreadIsParked) {
  HostThreads threads;
  bool own = false;
  threads.performInBackground([&] {
    const std::thread::id self = std::this_thread::get_id();
    for (int hop = 0; hop < 100'000 && !own; ++hop) {
      threads.performOnMainThreadAndWait([&] { own = std::this_thread::get_id() == self; });
    }
  });
  threads.runUntilIdle();
  EXPECT_TRUE(own);
}

TEST(HostThreads, AnEventLoopOfItsOwnKeepsTheRole) {
  HostThreads threads;
  threads.mailbox().setWakeCallback([] {});
  const std::thread::id main = std::this_thread::get_id();
  bool alwaysMain = true;
  threads.performInBackground([&] {
    for (int hop = 0; hop < 1000; ++hop) {
      threads.performOnMainThreadAndWait([&] { alwaysMain = alwaysMain && std::this_thread::get_id() == main; });
    }
  });
  threads.runUntilIdle();
  EXPECT_TRUE(alwaysMain);
}

TEST(HostThreads, NoLoopRunsInsideOfWorkThatBorrowedTheRole) {
  HostThreads threads;
  threads.performInBackground([&] {
    const std::thread::id self = std::this_thread::get_id();
    for (bool refused = false; !refused;) {
      threads.performOnMainThreadAndWait([&] {
        if (std::this_thread::get_id() != self) return;
        EXPECT_THROW(threads.runUntilIdle(), std::logic_error);
        refused = true;
      });
    }
  });
  threads.runUntilIdle();
  EXPECT_EQ(threads.jobsRunning(), 0);
}

TEST(HostThreads, WhatAJobHeldIsGoneWhenItIsIdle) {
  HostThreads threads;
  std::atomic<bool> gone{false};
  const auto letGoSlowly = [&gone](const int* held) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
    while (std::chrono::steady_clock::now() < end) std::this_thread::yield();
    delete held;
    gone = true;
  };
  std::shared_ptr<int> held(new int(1), letGoSlowly);
  threads.performInBackground([held = std::move(held)] { EXPECT_EQ(*held, 1); });
  threads.runUntilIdle();
  EXPECT_TRUE(gone);
}

TEST(HostThreads, JoiningAllDropsTheHopsAndWaitsForTheJobs) {
  HostThreads threads;
  bool hopped = false;
  bool ended = false;
  threads.performInBackground([&] {
    threads.performOnMainThreadAndWait([&hopped] { hopped = true; });
    ended = true;
  });
  threads.joinAll();
  EXPECT_FALSE(hopped);
  EXPECT_TRUE(ended);
}

TEST(HostThreads, StartsNoJobAfterJoiningAll) {
  HostThreads threads;
  threads.joinAll();
  bool ran = false;
  threads.performInBackground([&ran] { ran = true; });
  threads.runUntilIdle();
  EXPECT_FALSE(ran);
}

TEST(HostThreads, JoinsItsJobsWhenItGoesAway) {
  bool ended = false;
  {
    HostThreads threads;
    threads.performInBackground([&] {
      threads.performOnMainThreadAndWait([] {});
      ended = true;
    });
  }
  EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace glossmill
