#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/ArrayController.h"
#include "model/Boats.h"

namespace glossmill {
namespace {

/// Hears what a controller says from now on.
class Listener {
 public:
  explicit Listener(Boats& controller) {
    controller.addObserver([heard = m_heard](ArrayChange change) { heard->push_back(change); });
  }
  const std::vector<ArrayChange>& heard() const { return *m_heard; }

 private:
  std::shared_ptr<std::vector<ArrayChange>> m_heard = std::make_shared<std::vector<ArrayChange>>();
};

using Changes = std::vector<ArrayChange>;

using ArrayControllerSelectionTest = BoatsTest;

TEST_F(ArrayControllerSelectionTest, SelectsNothingAfterNewContent) {
  fill({"a", "b"});
  controller.setSelectionIndex(1);
  fill({"c", "d"});
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
  EXPECT_EQ(controller.selectedObject(), nullptr);
}

TEST_F(ArrayControllerSelectionTest, SelectsARow) {
  fill({"a", "b", "c"});
  controller.setSelectionIndex(1);
  EXPECT_EQ(controller.selectedRow(), std::optional<std::size_t>(1));
  EXPECT_EQ(controller.selectedObject(), (*controller.content())[1]);
}

TEST_F(ArrayControllerSelectionTest, CountsRowsInTheArrangement) {
  fill({"c", "a", "b"});
  controller.setLess(byName);
  controller.setSelectionIndex(0);
  EXPECT_EQ(selectedName(controller), "a");
}

TEST_F(ArrayControllerSelectionTest, ClearsTheSelectionForARowThatDoesNotExist) {
  fill({"a", "b"});
  controller.setSelectionIndex(1);
  controller.setSelectionIndex(2);
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
}

TEST_F(ArrayControllerSelectionTest, ClearsTheSelection) {
  fill({"a"});
  controller.setSelectionIndex(0);
  controller.clearSelection();
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
}

TEST_F(ArrayControllerSelectionTest, KeepsTheSelectedObjectThroughSorting) {
  fill({"c", "a", "b"});
  controller.setSelectionIndex(0);
  controller.setLess(byName);
  EXPECT_EQ(selectedName(controller), "c");
  EXPECT_EQ(controller.selectedRow(), std::optional<std::size_t>(2));
}

TEST_F(ArrayControllerSelectionTest, KeepsTheSelectedObjectThroughASearchThatFindsIt) {
  fill({"yacht", "ferry"});
  controller.setSelectionIndex(1);
  controller.setFilter(holding("ferry"));
  EXPECT_EQ(selectedName(controller), "ferry");
  EXPECT_EQ(controller.selectedRow(), std::optional<std::size_t>(0));
}

TEST_F(ArrayControllerSelectionTest, SelectsNothingAfterASearchThatHidesTheSelectedObject) {
  fill({"yacht", "ferry"});
  controller.setSelectionIndex(0);
  controller.setFilter(holding("ferry"));
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
  controller.setFilter(nullptr);
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
}

TEST_F(ArrayControllerSelectionTest, KeepsTheSelectedObjectWhenOthersAreRemoved) {
  fill({"ferry", "yacht", "old ferry", "barge"});
  controller.setSelectionIndex(3);
  controller.removeObjectsIf(holding("ferry"));
  EXPECT_EQ(selectedName(controller), "barge");
  EXPECT_EQ(controller.selectedRow(), std::optional<std::size_t>(1));
}

TEST_F(ArrayControllerSelectionTest, SelectsNothingWhenTheSelectedObjectIsRemoved) {
  fill({"ferry", "yacht"});
  controller.setSelectionIndex(0);
  controller.removeObjectsIf(holding("ferry"));
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
}

TEST_F(ArrayControllerSelectionTest, ComparesObjectsByIdentity) {
  fill({"ferry", "ferry", "ferry"});
  controller.setSelectionIndex(1);
  const Boats::Object middle = controller.selectedObject();
  const Boats::Object first = controller.arrangedObject(0);
  controller.removeObjectsIf([&first](const Boat& candidate) { return &candidate == first.get(); });
  EXPECT_EQ(controller.selectedObject(), middle);
  EXPECT_EQ(controller.selectedRow(), std::optional<std::size_t>(0));
}

TEST_F(ArrayControllerSelectionTest, StepsThroughTheRowsWithoutWrappingAround) {
  fill({"a", "b", "c"});
  controller.setSelectionIndex(0);
  EXPECT_FALSE(controller.canSelectPrevious());
  controller.selectPrevious();
  EXPECT_EQ(selectedName(controller), "a");

  EXPECT_TRUE(controller.canSelectNext());
  controller.selectNext();
  EXPECT_EQ(selectedName(controller), "b");
  EXPECT_TRUE(controller.canSelectPrevious());
  controller.selectNext();
  EXPECT_EQ(selectedName(controller), "c");

  EXPECT_FALSE(controller.canSelectNext());
  controller.selectNext();
  EXPECT_EQ(selectedName(controller), "c");
  controller.selectPrevious();
  EXPECT_EQ(selectedName(controller), "b");
}

TEST_F(ArrayControllerSelectionTest, StepsInTheOrderOfTheArrangement) {
  fill({"c ferry", "b yacht", "a ferry"});
  controller.setFilter(holding("ferry"));
  controller.setLess(byName);
  controller.setSelectionIndex(0);
  controller.selectNext();
  EXPECT_EQ(selectedName(controller), "c ferry");
  EXPECT_FALSE(controller.canSelectNext());
}

TEST_F(ArrayControllerSelectionTest, CannotStepWithoutRows) {
  EXPECT_FALSE(controller.canSelectPrevious());
  EXPECT_FALSE(controller.canSelectNext());
  controller.selectNext();
  controller.selectPrevious();
  EXPECT_EQ(controller.selectedRow(), std::nullopt);
}

TEST_F(ArrayControllerSelectionTest, StepsForwardToTheFirstRowWhileNothingIsSelected) {
  fill({"a", "b"});
  EXPECT_TRUE(controller.canSelectNext());
  controller.selectNext();
  EXPECT_EQ(selectedName(controller), "a");
}

TEST_F(ArrayControllerSelectionTest, StepsBackToTheLastRowWhileNothingIsSelected) {
  fill({"a", "b"});
  EXPECT_TRUE(controller.canSelectPrevious());
  controller.selectPrevious();
  EXPECT_EQ(selectedName(controller), "b");
}

TEST_F(ArrayControllerSelectionTest, TellsOfOtherContent) {
  const Listener listener(controller);
  fill({"a", "b"});
  controller.addObject(boat("c"));
  controller.addObjects({boat("d"), boat("e")});
  controller.removeObjectsIf(holding("a"));
  controller.removeAllObjects();
  EXPECT_EQ(listener.heard(), Changes(5, ArrayChange::Content));
}

TEST_F(ArrayControllerSelectionTest, TellsOfAnotherArrangement) {
  fill({"a", "b"});
  const Listener listener(controller);
  controller.setLess(byName);
  controller.setFilter(holding("a"));
  controller.rearrange();
  EXPECT_EQ(listener.heard(), Changes(3, ArrayChange::Arranged));
}

TEST_F(ArrayControllerSelectionTest, TellsOfAnotherSelection) {
  fill({"a", "b"});
  const Listener listener(controller);
  controller.setSelectionIndex(0);
  controller.selectNext();
  controller.selectPrevious();
  controller.clearSelection();
  EXPECT_EQ(listener.heard(), Changes(4, ArrayChange::Selection));
}

TEST_F(ArrayControllerSelectionTest, IsSilentWhenTheSelectionStays) {
  fill({"a", "b"});
  controller.setSelectionIndex(0);
  const Listener listener(controller);
  controller.setSelectionIndex(0);
  controller.selectPrevious();
  controller.setSelectionIndex(7);
  controller.clearSelection();
  EXPECT_EQ(listener.heard(), Changes{ArrayChange::Selection});
}

TEST_F(ArrayControllerSelectionTest, TellsEveryObserverOnceTheChangeIsDone) {
  std::vector<std::string> heard;
  controller.addObserver([&](ArrayChange) { heard.push_back("one: " + selectedName(controller)); });
  controller.addObserver([&](ArrayChange) { heard.push_back("two: " + selectedName(controller)); });
  fill({"a"});
  controller.setSelectionIndex(0);
  EXPECT_EQ(heard, (std::vector<std::string>{"one: nothing", "two: nothing", "one: a", "two: a"}));
}

}  // namespace
}  // namespace glossmill
