#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "model/ArrayController.h"
#include "model/Boats.h"

namespace glossmill {
namespace {

using ArrayControllerTest = BoatsTest;

TEST_F(ArrayControllerTest, IsEmptyAtFirst) {
  ASSERT_NE(controller.content(), nullptr);
  EXPECT_EQ(controller.arrangedCount(), 0U);
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
  EXPECT_EQ(controller.selectedObject(), nullptr);
}

TEST_F(ArrayControllerTest, ArrangesItsContentInItsOrder) {
  fill({"c", "a", "b"});
  EXPECT_EQ(arrangedNames(controller), (Names{"c", "a", "b"}));
}

TEST_F(ArrayControllerTest, SharesTheArrayItWasGiven) {
  const auto array = boats({"a"});
  controller.setContent(array);
  controller.addObject(boat("b"));
  EXPECT_EQ(controller.content(), array);
  EXPECT_EQ(array->size(), 2U);
}

TEST_F(ArrayControllerTest, SortsWithoutTouchingTheContent) {
  fill({"c", "a", "b"});
  controller.setLess(byName);
  EXPECT_EQ(arrangedNames(controller), (Names{"a", "b", "c"}));
  EXPECT_EQ(contentNames(controller), (Names{"c", "a", "b"}));
}

TEST_F(ArrayControllerTest, KeepsTheOrderOfEqualObjects) {
  auto array = std::make_shared<Boats::Array>();
  for (int place = 0; place < 40; ++place) array->push_back(boat(std::to_string(place), place % 2));
  controller.setContent(array);
  controller.setLess(byLength);
  for (std::size_t row = 0; row < 20; ++row) {
    EXPECT_EQ(controller.arrangedObject(row)->name, std::to_string(2 * row));
    EXPECT_EQ(controller.arrangedObject(row + 20)->name, std::to_string(2 * row + 1));
  }
}

TEST_F(ArrayControllerTest, GoesBackToTheOrderOfTheContent) {
  fill({"c", "a", "b"});
  controller.setLess(byName);
  controller.setLess(nullptr);
  EXPECT_EQ(arrangedNames(controller), (Names{"c", "a", "b"}));
}

TEST_F(ArrayControllerTest, ShowsOnlyWhatTheSearchFinds) {
  fill({"ferry", "yacht", "old ferry"});
  controller.setFilter(holding("ferry"));
  EXPECT_EQ(arrangedNames(controller), (Names{"ferry", "old ferry"}));
  EXPECT_EQ(contentNames(controller), (Names{"ferry", "yacht", "old ferry"}));
}

TEST_F(ArrayControllerTest, ShowsEverythingAfterTheSearch) {
  fill({"ferry", "yacht"});
  controller.setFilter(holding("ferry"));
  controller.setFilter(nullptr);
  EXPECT_EQ(arrangedNames(controller), (Names{"ferry", "yacht"}));
}

TEST_F(ArrayControllerTest, SortsWhatTheSearchFinds) {
  fill({"c ferry", "b yacht", "a ferry"});
  controller.setFilter(holding("ferry"));
  controller.setLess(byName);
  EXPECT_EQ(arrangedNames(controller), (Names{"a ferry", "c ferry"}));
}

TEST_F(ArrayControllerTest, ArrangesNewContentByTheSameOrderAndSearch) {
  controller.setFilter(holding("ferry"));
  controller.setLess(byName);
  fill({"c ferry", "b yacht", "a ferry"});
  EXPECT_EQ(arrangedNames(controller), (Names{"a ferry", "c ferry"}));
}

TEST_F(ArrayControllerTest, ArrangesAnewAfterObjectsHaveChanged) {
  fill({"a", "b"});
  controller.setLess(byName);
  (*controller.content())[0]->name = "z";
  controller.rearrange();
  EXPECT_EQ(arrangedNames(controller), (Names{"b", "z"}));
}

TEST_F(ArrayControllerTest, AddsAnObjectWhereTheOrderWantsIt) {
  fill({"c", "a"});
  controller.setLess(byName);
  controller.setSelectionIndex(1);
  controller.addObject(boat("b"));
  EXPECT_EQ(arrangedNames(controller), (Names{"a", "b", "c"}));
  EXPECT_EQ(contentNames(controller), (Names{"c", "a", "b"}));
  EXPECT_EQ(selectedName(controller), "c");
}

TEST_F(ArrayControllerTest, AddsAnObjectThatTheSearchHides) {
  fill({"ferry"});
  controller.setFilter(holding("ferry"));
  controller.addObject(boat("yacht"));
  EXPECT_EQ(arrangedNames(controller), Names{"ferry"});
  EXPECT_EQ(contentNames(controller), (Names{"ferry", "yacht"}));
}

TEST_F(ArrayControllerTest, AddsSeveralObjectsAtTheEnd) {
  fill({"a"});
  controller.setSelectionIndex(0);
  controller.addObjects({boat("b"), boat("c")});
  EXPECT_EQ(contentNames(controller), (Names{"a", "b", "c"}));
  EXPECT_EQ(arrangedNames(controller), (Names{"a", "b", "c"}));
  EXPECT_EQ(selectedName(controller), "a");
}

TEST_F(ArrayControllerTest, RemovesEverything) {
  const auto array = boats({"a", "b"});
  controller.setContent(array);
  controller.setSelectionIndex(1);
  controller.removeAllObjects();
  EXPECT_TRUE(array->empty());
  EXPECT_EQ(controller.arrangedCount(), 0U);
  EXPECT_EQ(controller.selectedObject(), nullptr);
}

TEST_F(ArrayControllerTest, RemovesUnwantedObjectsAndKeepsTheOrderOfTheOthers) {
  fill({"ferry", "yacht", "old ferry", "barge"});
  controller.removeObjectsIf(holding("ferry"));
  EXPECT_EQ(contentNames(controller), (Names{"yacht", "barge"}));
  EXPECT_EQ(arrangedNames(controller), (Names{"yacht", "barge"}));
}

TEST_F(ArrayControllerTest, RemovesUnwantedObjectsThatTheSearchHides) {
  fill({"ferry", "yacht", "old ferry"});
  controller.setFilter(holding("yacht"));
  controller.removeObjectsIf(holding("ferry"));
  EXPECT_EQ(contentNames(controller), Names{"yacht"});
}

}  // namespace
}  // namespace glossmill
