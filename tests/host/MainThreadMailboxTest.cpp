#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <new>
#include <semaphore>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include "host/MainThreadMailbox.h"

namespace glossmill {
namespace {

using std::chrono::seconds;
using Clock = MainThreadMailbox::Clock;

/// Posts one work on a thread of its own and keeps the answer.
class Poster {
 public:
  Poster(MainThreadMailbox& mailbox, std::function<void()> work)
      : m_thread([this, &mailbox, work = std::move(work)] { m_done = mailbox.performAndWait(work); }) {}
  ~Poster() {
    if (m_thread.joinable()) m_thread.join();
  }

  bool wasDone() {
    m_thread.join();
    return m_done;
  }

 private:
  bool m_done = false;
  std::thread m_thread;
};

void waitForWork(const MainThreadMailbox& mailbox, std::size_t count) {
  while (mailbox.waitingCount() < count) std::this_thread::yield();
}

/// Hops from a thread of its own until one hop was done there, with the role borrowed: the first ones may come before
/// the main thread is parked.
class BorrowingPoster {
 public:
  using BorrowedWork = std::function<void(MainThreadMailbox&)>;

  explicit BorrowingPoster(MainThreadMailbox& mailbox) : m_mailbox(mailbox) {}
  ~BorrowingPoster() {
    if (m_thread.joinable()) m_thread.join();
  }

  /// `work` is done once, `afterwards` by the thread itself, without the role.
  void start(
      BorrowedWork work, std::function<void()> afterwards = [] {}) {
    m_thread = std::thread([this, work = std::move(work), afterwards = std::move(afterwards)] {
      const std::thread::id self = std::this_thread::get_id();
      for (bool borrowed = false; !borrowed;) {
        m_mailbox.performAndWait([&] {
          borrowed = std::this_thread::get_id() == self;
          if (borrowed) work(m_mailbox);
        });
      }
      afterwards();
      m_done = true;
      m_mailbox.nudge();
    });
  }

  bool isDone() const { return m_done; }
  /// The main thread's part.
  void parkUntilDone() {
    while (!m_done) {
      m_mailbox.parkUntil(Clock::now() + seconds(10));
      m_mailbox.drain(seconds(0));
    }
  }

 private:
  MainThreadMailbox& m_mailbox;
  std::atomic<bool> m_done{false};
  std::thread m_thread;
};

TEST(MainThreadMailbox, DoesTheWorkOnTheDrainingThreadBeforeThePosterGoesOn) {
  MainThreadMailbox mailbox;
  std::thread::id worker;
  Poster poster(mailbox, [&worker] { worker = std::this_thread::get_id(); });
  waitForWork(mailbox, 1);
  mailbox.drain();
  EXPECT_TRUE(poster.wasDone());
  EXPECT_EQ(worker, std::this_thread::get_id());
}

TEST(MainThreadMailbox, KeepsTheOrderOfPosting) {
  MainThreadMailbox mailbox;
  std::vector<int> order;
  Poster first(mailbox, [&order] { order.push_back(1); });
  waitForWork(mailbox, 1);
  Poster second(mailbox, [&order] { order.push_back(2); });
  waitForWork(mailbox, 2);
  Poster third(mailbox, [&order] { order.push_back(3); });
  waitForWork(mailbox, 3);
  mailbox.drain();
  EXPECT_EQ(order, (std::vector{1, 2, 3}));
}

TEST(MainThreadMailbox, CarriesManyHopsOfSeveralThreadsEachInItsOrder) {
  constexpr int kThreads = 3;
  constexpr int kHops = 2000;
  MainThreadMailbox mailbox;
  std::vector<std::vector<int>> seen(kThreads);
  std::atomic<int> ended{0};
  std::vector<std::thread> threads;
  for (auto& mine : seen) {
    threads.emplace_back([&mailbox, &mine, &ended] {
      for (int hop = 0; hop < kHops; ++hop) mailbox.performAndWait([&mine, hop] { mine.push_back(hop); });
      ++ended;
      mailbox.nudge();
    });
  }
  while (ended < kThreads) {
    mailbox.parkUntil(Clock::now() + seconds(10));
    mailbox.drain();
  }
  for (std::thread& thread : threads) thread.join();
  for (const auto& mine : seen) {
    ASSERT_EQ(mine.size(), kHops);
    for (int hop = 0; hop < kHops; ++hop) ASSERT_EQ(mine[static_cast<std::size_t>(hop)], hop);
  }
}

TEST(MainThreadMailbox, DoesWorkThatCameWhileItDrained) {
  MainThreadMailbox mailbox;
  bool secondDone = false;
  std::thread other;
  Poster poster(mailbox, [&] {
    other = std::thread([&] { mailbox.performAndWait([&secondDone] { secondDone = true; }); });
    waitForWork(mailbox, 1);
  });
  waitForWork(mailbox, 1);
  mailbox.drain(seconds(10));
  other.join();
  EXPECT_TRUE(secondDone);
}

TEST(MainThreadMailbox, LeavesTheRestWhenTheTimeOfTheTurnIsOver) {
  MainThreadMailbox mailbox;
  Poster first(mailbox, [] {});
  Poster second(mailbox, [] {});
  waitForWork(mailbox, 2);
  mailbox.drain(seconds(0));
  EXPECT_EQ(mailbox.waitingCount(), 1U);
  mailbox.drain();
  EXPECT_EQ(mailbox.waitingCount(), 0U);
}

TEST(MainThreadMailbox, ClosingReleasesAWaiterAndDropsItsWork) {
  MainThreadMailbox mailbox;
  bool ran = false;
  Poster poster(mailbox, [&ran] { ran = true; });
  waitForWork(mailbox, 1);
  mailbox.close();
  EXPECT_FALSE(poster.wasDone());
  mailbox.drain();
  EXPECT_FALSE(ran);
}

TEST(MainThreadMailbox, RefusesWorkOnceItIsClosed) {
  MainThreadMailbox mailbox;
  mailbox.close();
  bool ran = false;
  Poster poster(mailbox, [&ran] { ran = true; });
  EXPECT_FALSE(poster.wasDone());
  EXPECT_FALSE(ran);
}

TEST(MainThreadMailbox, FinishesTheWorkThatClosesIt) {
  MainThreadMailbox mailbox;
  bool finished = false;
  Poster poster(mailbox, [&] {
    mailbox.close();
    finished = true;
  });
  waitForWork(mailbox, 1);
  mailbox.drain();
  EXPECT_TRUE(poster.wasDone());
  EXPECT_TRUE(finished);
}

TEST(MainThreadMailbox, ANudgeEndsTheWait) {
  MainThreadMailbox mailbox;
  mailbox.nudge();
  const auto start = Clock::now();
  mailbox.parkUntil(start + seconds(60));
  EXPECT_LT(Clock::now() - start, seconds(30));
}

TEST(MainThreadMailbox, WorkEndsTheWaitOfAnEventLoopThatKeepsItsRole) {
  MainThreadMailbox mailbox;
  mailbox.setWakeCallback([] {});
  std::thread::id worker;
  Poster poster(mailbox, [&worker] { worker = std::this_thread::get_id(); });
  const auto start = Clock::now();
  mailbox.parkUntil(start + seconds(60));
  EXPECT_LT(Clock::now() - start, seconds(30));
  mailbox.drain();
  EXPECT_TRUE(poster.wasDone());
  EXPECT_EQ(worker, std::this_thread::get_id());
}

TEST(MainThreadMailbox, TheWaitEndsWithItsTimeout) {
  MainThreadMailbox mailbox;
  const auto start = Clock::now();
  mailbox.parkUntil(start + std::chrono::milliseconds(20));
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(20));
}

TEST(MainThreadMailbox, WakesTheEventLoopOnceUntilItIsDrained) {
  MainThreadMailbox mailbox;
  std::atomic<int> wakes{0};
  mailbox.setWakeCallback([&wakes] { ++wakes; });
  {
    Poster first(mailbox, [] {});
    waitForWork(mailbox, 1);
    Poster second(mailbox, [] {});
    waitForWork(mailbox, 2);
    mailbox.drain(seconds(10));
  }
  EXPECT_EQ(wakes, 1);
}

TEST(MainThreadMailbox, WakesTheEventLoopAgainAfterItWasDrained) {
  MainThreadMailbox mailbox;
  std::atomic<int> wakes{0};
  mailbox.setWakeCallback([&wakes] { ++wakes; });
  for (int round = 1; round <= 3; ++round) {
    Poster poster(mailbox, [] {});
    waitForWork(mailbox, 1);
    mailbox.drain();
    EXPECT_TRUE(poster.wasDone());
    EXPECT_EQ(wakes, round);
  }
}

TEST(MainThreadMailbox, WakesTheEventLoopOnceMoreForWorkThatATurnLeft) {
  MainThreadMailbox mailbox;
  std::atomic<int> wakes{0};
  Poster first(mailbox, [] {});
  Poster second(mailbox, [] {});
  waitForWork(mailbox, 2);
  mailbox.setWakeCallback([&wakes] { ++wakes; });
  EXPECT_EQ(wakes, 1);
  mailbox.drain(seconds(0));
  EXPECT_EQ(wakes, 2);
  mailbox.drain();
  EXPECT_EQ(wakes, 2);
}

TEST(MainThreadMailbox, AnEventLoopThatComesLateIsWokenForTheWorkThatWaits) {
  MainThreadMailbox mailbox;
  Poster poster(mailbox, [] {});
  waitForWork(mailbox, 1);
  int wakes = 0;
  mailbox.setWakeCallback([&wakes] { ++wakes; });
  EXPECT_EQ(wakes, 1);
  mailbox.drain();
}

TEST(MainThreadMailbox, RearmingWakesAtOnceWhenWorkWaits) {
  MainThreadMailbox mailbox;
  std::atomic<int> wakes{0};
  mailbox.setWakeCallback([&wakes] { ++wakes; });
  Poster poster(mailbox, [] {});
  while (wakes == 0) std::this_thread::yield();
  mailbox.rearm();
  EXPECT_EQ(wakes, 2);
  mailbox.drain();
}

TEST(MainThreadMailbox, ANestedLoopIsWokenAfterRearming) {
  MainThreadMailbox mailbox;
  std::counting_semaphore<> woken{0};
  mailbox.setWakeCallback([&woken] { woken.release(); });
  bool nestedDone = false;
  Poster outer(mailbox, [&] {
    mailbox.rearm();
    Poster inner(mailbox, [&nestedDone] { nestedDone = true; });
    woken.acquire();
    mailbox.drain();
    EXPECT_TRUE(inner.wasDone());
  });
  woken.acquire();
  mailbox.drain();
  EXPECT_TRUE(outer.wasDone());
  EXPECT_TRUE(nestedDone);
}

TEST(MainThreadMailbox, AnEventLoopThatSleepsBetweenWakesMissesNoHop) {
  constexpr int kHops = 5000;
  MainThreadMailbox mailbox;
  std::counting_semaphore<> woken{0};
  mailbox.setWakeCallback([&woken] { woken.release(); });
  int done = 0;
  std::thread thread([&] {
    for (int hop = 0; hop < kHops; ++hop) mailbox.performAndWait([&done] { ++done; });
  });
  while (done < kHops) {
    woken.acquire();
    mailbox.drain();
  }
  thread.join();
  EXPECT_EQ(done, kHops);
}

TEST(MainThreadMailbox, APosterBorrowsTheRoleOfAParkedMainThread) {
  MainThreadMailbox mailbox;
  BorrowingPoster poster(mailbox);
  bool mainInWork = false;
  bool mainAfterwards = true;
  poster.start([&](MainThreadMailbox& lent) { mainInWork = lent.isMainThread(); },
               [&] { mainAfterwards = mailbox.isMainThread(); });
  EXPECT_NO_THROW(poster.parkUntilDone());
  EXPECT_TRUE(mainInWork);
  EXPECT_FALSE(mainAfterwards);
  EXPECT_TRUE(mailbox.isMainThread());
}

TEST(MainThreadMailbox, TheMainThreadGetsItsRoleBackWhenTheHopIsDone) {
  MainThreadMailbox mailbox;
  BorrowingPoster poster(mailbox);
  bool working = false;  // plain: whoever holds the role sees what its holders did before
  poster.start([&](MainThreadMailbox&) {
    working = true;
    const auto end = Clock::now() + std::chrono::milliseconds(20);
    while (Clock::now() < end) std::this_thread::yield();
    working = false;
  });
  while (!poster.isDone()) {
    mailbox.parkUntil(Clock::now() + std::chrono::milliseconds(1));
    EXPECT_TRUE(mailbox.isMainThread());
    EXPECT_FALSE(working);
    mailbox.drain(seconds(0));
  }
}

TEST(MainThreadMailbox, WhatABorrowersWorkThrowsReachesTheMainThreadAtOnce) {
  MainThreadMailbox mailbox;
  std::binary_semaphore caught{0};
  BorrowingPoster poster(mailbox);
  poster.start([](MainThreadMailbox&) { throw std::bad_alloc(); }, [&caught] { caught.acquire(); });
  const auto start = Clock::now();
  EXPECT_THROW(poster.parkUntilDone(), std::bad_alloc);
  EXPECT_LT(Clock::now() - start, seconds(5));
  caught.release();
  poster.parkUntilDone();
}

TEST(MainThreadMailbox, ABorrowerRunsNoLoopOfItsOwn) {
  MainThreadMailbox mailbox;
  BorrowingPoster poster(mailbox);
  poster.start([](MainThreadMailbox& lent) {
    EXPECT_THROW(lent.drain(), std::logic_error);
    EXPECT_THROW(lent.parkUntil(Clock::now()), std::logic_error);
  });
  poster.parkUntilDone();
}

TEST(MainThreadMailbox, NobodyBorrowsTheRoleInFrontOfWorkThatWaits) {
  MainThreadMailbox mailbox;
  std::vector<int> order;
  std::thread second;
  BorrowingPoster first(mailbox);
  const auto letAnotherPost = [&](MainThreadMailbox&) {
    second = std::thread([&] { mailbox.performAndWait([&order] { order.push_back(1); }); });
    waitForWork(mailbox, 1);
  };
  first.start(letAnotherPost, [&] { mailbox.performAndWait([&order] { order.push_back(2); }); });
  first.parkUntilDone();
  second.join();
  EXPECT_EQ(order, (std::vector{1, 2}));
}

}  // namespace
}  // namespace glossmill
