#include <gtest/gtest.h>

#include "app/DisplayTransformers.h"
#include "app/SheetWindow.h"

namespace glossmill {
namespace {

Color colorOf(std::optional<Status> status) {
  return StatusToTextColorTransformer::transformedValue(status);
}

TEST(StatusToTextColor, IsRedForIncomplete) {
  EXPECT_EQ(colorOf(Status::Incomplete), (Color{1, 0, 0}));
}

TEST(StatusToTextColor, IsGreenForAutomatic) {
  EXPECT_EQ(colorOf(Status::Automatic), (Color{0, 1, 0}));
}

TEST(StatusToTextColor, IsBlueForIgnored) {
  EXPECT_EQ(colorOf(Status::Ignored), (Color{0, 0, 1}));
}

TEST(StatusToTextColor, IsBlackForEverythingElse) {
  EXPECT_EQ(colorOf(Status::Complete), (Color{0, 0, 0}));
  EXPECT_EQ(colorOf(std::nullopt), (Color{0, 0, 0}));
}

TEST(ArrayCountToLabelText, GivesTheNumberOfElements) {
  EXPECT_EQ(ArrayCountToLabelTextTransformer::transformedValue(0), "0");
  EXPECT_EQ(ArrayCountToLabelTextTransformer::transformedValue(12), "12");
  EXPECT_EQ(ArrayCountToLabelTextTransformer::transformedValue(1234567), "1234567");
}

TEST(ArrayCountToLabelText, GivesZeroForNoList) {
  EXPECT_EQ(ArrayCountToLabelTextTransformer::transformedValue(std::nullopt), "0");
}

TEST(BOOLToColor, IsGreenForTrueAndBlackOtherwise) {
  EXPECT_EQ(BOOLToColorTransformer::transformedValue(true), (Color{0, 1, 0}));
  EXPECT_EQ(BOOLToColorTransformer::transformedValue(false), (Color{0, 0, 0}));
  EXPECT_EQ(BOOLToColorTransformer::transformedValue(std::nullopt), (Color{0, 0, 0}));
}

TEST(DisplayTransformers, GoOneWayOnly) {
  EXPECT_FALSE(StatusToTextColorTransformer::allowsReverseTransformation());
  EXPECT_FALSE(ArrayCountToLabelTextTransformer::allowsReverseTransformation());
  EXPECT_FALSE(BOOLToColorTransformer::allowsReverseTransformation());
}

TEST(DisplayTransformers, DeclareTheirResultsOtherwiseThanTheyAre) {
  EXPECT_EQ(StatusToTextColorTransformer::transformedValueClass(), "NSString");
  EXPECT_EQ(ArrayCountToLabelTextTransformer::transformedValueClass(), "NSMutableArray");
  EXPECT_EQ(BOOLToColorTransformer::transformedValueClass(), "NSNumber");
}

TEST(SheetWindow, CanAlwaysTakeTheKeyboard) {
  EXPECT_TRUE(SheetWindow::canBecomeKeyWindow());
}

}  // namespace
}  // namespace glossmill
