#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <semaphore>
#include <thread>
#include <vector>

#include "host/MainThreadMailbox.h"

namespace glossmill {
namespace {

using std::chrono::seconds;

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
  while (ended < kThreads) mailbox.waitAndDrain(seconds(10));
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
  const auto start = std::chrono::steady_clock::now();
  mailbox.waitAndDrain(seconds(60));
  EXPECT_LT(std::chrono::steady_clock::now() - start, seconds(30));
}

TEST(MainThreadMailbox, WorkEndsTheWait) {
  MainThreadMailbox mailbox;
  const auto start = std::chrono::steady_clock::now();
  std::thread thread([&mailbox, start] {
    while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(10)) std::this_thread::yield();
    mailbox.performAndWait([] {});
  });
  mailbox.waitAndDrain(seconds(60));
  EXPECT_LT(std::chrono::steady_clock::now() - start, seconds(30));
  thread.join();
}

TEST(MainThreadMailbox, TheWaitEndsWithItsTimeout) {
  MainThreadMailbox mailbox;
  const auto start = std::chrono::steady_clock::now();
  mailbox.waitAndDrain(std::chrono::milliseconds(20));
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(20));
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

}  // namespace
}  // namespace glossmill
