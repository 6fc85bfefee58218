#include <gtest/gtest.h>

#include "app/NewsQueue.h"

namespace glossmill {
namespace {

News news(const std::string& id, const std::string& text = "text") {
  return {id, text, {}, NewsKind::Note};
}

TEST(NewsQueue, OnePieceIsShownAndTheOthersWaitInTheirOrder) {
  NewsQueue queue;
  EXPECT_EQ(queue.current(), nullptr);
  for (const char* id : {"a", "b", "c"}) queue.post(news(id));
  EXPECT_EQ(queue.current()->id, "a");
  EXPECT_EQ(queue.waiting(), 2U);
  queue.dismiss();
  EXPECT_EQ(queue.current()->id, "b");
  queue.dismiss();
  queue.dismiss();
  EXPECT_EQ(queue.current(), nullptr);
}

TEST(NewsQueue, AnOfferWaitsBehindAllTheRest) {
  NewsQueue queue;
  queue.post({"offer", "text", {}, NewsKind::Offer});
  EXPECT_EQ(queue.current()->id, "offer");
  for (const char* id : {"a", "b"}) queue.post(news(id));
  EXPECT_EQ(queue.current()->id, "a");
  queue.dismiss();
  EXPECT_EQ(queue.current()->id, "b");
  queue.dismiss();
  EXPECT_EQ(queue.current()->id, "offer");
}

TEST(NewsQueue, NewerNewsOfAKindTakesThePlaceOfOlder) {
  NewsQueue queue;
  queue.post(news("a"));
  queue.post(news("b", "old"));
  queue.post(news("b", "new"));
  EXPECT_EQ(queue.waiting(), 1U);
  queue.dismiss();
  EXPECT_EQ(queue.current()->text, "new");
}

TEST(NewsQueue, AnActionEndsItsNewsBeforeItIsDone) {
  NewsQueue queue;
  News one = news("a");
  one.actions = {{"Show", nullptr}, {"Restore", [&queue] { queue.post(news("b")); }}};
  queue.post(one);
  queue.perform(2);
  EXPECT_EQ(queue.current()->id, "a");
  queue.perform(1);
  EXPECT_EQ(queue.current()->id, "b");
  EXPECT_EQ(queue.waiting(), 0U);
}

TEST(NewsQueue, WhatIsOverIsWithdrawnWhereverItStands) {
  NewsQueue queue;
  for (const char* id : {"a", "b", "c"}) queue.post(news(id));
  queue.withdraw("b");
  queue.withdraw("a");
  EXPECT_EQ(queue.current()->id, "c");
}

TEST(NewsQueue, EveryChangeIsToldAndNothingElse) {
  NewsQueue queue;
  int changes = 0;
  queue.changed = [&changes] { ++changes; };
  queue.dismiss();
  queue.clear();
  queue.withdraw("a");
  EXPECT_EQ(changes, 0);
  queue.post(news("a"));
  queue.post(news("b"));
  queue.dismiss();
  queue.clear();
  EXPECT_EQ(changes, 4);
}

}  // namespace
}  // namespace glossmill
