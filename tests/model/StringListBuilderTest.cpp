#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "model/StringListBuilder.h"

namespace glossmill {
namespace {

using Comments = std::vector<std::string>;

const FileUrl kMain("/Harbour/main.m");
const FileUrl kBerth("/Harbour/Berth.m");

std::vector<std::string> namesIn(const StringListBuilder& list) {
  std::vector<std::string> names;
  for (const auto& record : list.records()) names.push_back(record->name());
  return names;
}

TEST(StringListBuilder, HoldsNothingAtFirst) {
  StringListBuilder list;
  list.add({}, kMain);
  EXPECT_TRUE(list.records().empty());
  EXPECT_EQ(list.keys().size(), 0U);
}

TEST(StringListBuilder, MakesARecordWithOneUseOneCommentAndOneFile) {
  StringListBuilder list;
  list.add({{"Open", "Menu title"}}, kMain);
  ASSERT_EQ(list.records().size(), 1U);
  const LocalizeString& record = *list.records().front();
  EXPECT_EQ(record.name(), "Open");
  EXPECT_EQ(record.useCount(), 1);
  EXPECT_EQ(record.commentArray(), Comments{"Menu title"});
  EXPECT_EQ(record.filesArray(), std::vector{kMain});
  EXPECT_EQ(record.languagesDict().count(), 0U);
}

TEST(StringListBuilder, KeepsKeysInTheOrderInWhichTheyWereFirstSeen) {
  StringListBuilder list;
  list.add({{"c", ""}, {"a", ""}}, kMain);
  list.add({{"b", ""}, {"c", ""}}, kBerth);
  EXPECT_EQ(namesIn(list), (std::vector<std::string>{"c", "a", "b"}));
  EXPECT_EQ(list.keys().find("b"), KeyIndex::Number{2});
}

TEST(StringListBuilder, CountsEveryUseOfAKey) {
  StringListBuilder list;
  list.add({{"Open", "x"}, {"Open", "x"}}, kMain);
  list.add({{"Open", "y"}, {"Close", "z"}}, kBerth);
  EXPECT_EQ(list.records()[0]->useCount(), 3);
  EXPECT_EQ(list.records()[1]->useCount(), 1);
}

TEST(StringListBuilder, RecordsOnlyTheFileInWhichAKeyWasFirstFound) {
  StringListBuilder list;
  list.add({{"Open", "x"}}, kMain);
  list.add({{"Open", "y"}}, kBerth);
  EXPECT_EQ(list.records()[0]->filesArray(), std::vector{kMain});
}

TEST(StringListBuilder, KeepsEachCommentOnceInTheOrderInWhichItWasFirstSeen) {
  StringListBuilder list;
  list.add({{"Open", "b"}, {"Open", "a"}, {"Open", "b"}}, kMain);
  list.add({{"Open", "a"}, {"Open", "A"}}, kBerth);
  EXPECT_EQ(list.records()[0]->commentArray(), (Comments{"b", "a", "A"}));
}

TEST(StringListBuilder, KeepsAnEmptyCommentLikeAnyOther) {
  StringListBuilder list;
  list.add({{"a", ""}, {"a", "x"}, {"a", ""}, {"b", "x"}, {"b", ""}, {"b", ""}}, kMain);
  EXPECT_EQ(list.records()[0]->commentArray(), (Comments{"", "x"}));
  EXPECT_EQ(list.records()[1]->commentArray(), (Comments{"x", ""}));
}

TEST(StringListBuilder, ComparesNamesExactly) {
  StringListBuilder list;
  list.add({{"Open", ""}, {"open", ""}, {"Open ", ""}, {"", ""}}, kMain);
  EXPECT_EQ(namesIn(list), (std::vector<std::string>{"Open", "open", "Open ", ""}));
}

TEST(StringListBuilder, KeepsEachOfManyCommentsOnce) {
  constexpr int kComments = 200;
  StringListBuilder list;
  Comments expected;
  for (int number = 0; number < kComments; ++number) expected.push_back("comment " + std::to_string(number));
  for (int round = 0; round < 3; ++round) {
    for (const std::string& comment : expected) list.add({{"a", comment}, {"b", comment}}, kMain);
  }
  for (const auto& record : list.records()) {
    EXPECT_EQ(record->commentArray(), expected);
    EXPECT_EQ(record->useCount(), 3 * kComments);
  }
}

TEST(StringListBuilder, TellsManyCommentsOfOneKeyFromThoseOfAnother) {
  StringListBuilder list;
  for (int number = 0; number < 40; ++number) list.add({{"a", std::to_string(number)}}, kMain);
  list.add({{"b", "39"}, {"b", "40"}, {"a", "40"}}, kMain);
  EXPECT_EQ(list.records()[0]->commentArray().size(), 41U);
  EXPECT_EQ(list.records()[1]->commentArray(), (Comments{"39", "40"}));
}

TEST(StringListBuilder, KeepsTextsWhoseSourceIsGone) {
  StringListBuilder list;
  {
    std::string source = "Open/Menu title";
    const std::string_view view = source;
    list.add({{view.substr(0, 4), view.substr(5)}}, kMain);
    source.assign(source.size(), '#');
  }
  EXPECT_EQ(list.records()[0]->name(), "Open");
  EXPECT_EQ(list.records()[0]->comment(), "Menu title");
  EXPECT_EQ(list.keys().find("Open"), KeyIndex::Number{0});
}

}  // namespace
}  // namespace glossmill
