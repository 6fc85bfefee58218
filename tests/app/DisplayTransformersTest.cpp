#include <gtest/gtest.h>

#include "app/DisplayTransformers.h"
#include "app/SheetWindow.h"
#include "host/EmbeddedBundle.h"

namespace glossmill {
namespace {

const EmbeddedBundle kEnglish;
const StatusTexts kTexts(kEnglish);
const StatusToTextColorTransformer kStatusColor(kTexts);

TEST(StatusToTextColor, IsRedForIncomplete) {
  EXPECT_EQ(kStatusColor.transformedValue("Incomplete"), (Color{1, 0, 0}));
}

TEST(StatusToTextColor, IsGreenForAutomatic) {
  EXPECT_EQ(kStatusColor.transformedValue("Automatic"), (Color{0, 1, 0}));
}

TEST(StatusToTextColor, IsBlueForIgnored) {
  EXPECT_EQ(kStatusColor.transformedValue("Ignored"), (Color{0, 0, 1}));
}

TEST(StatusToTextColor, IsBlackForEverythingElse) {
  for (const char* status : {"Complete", "3 missing", "incomplete", "", "anything"}) {
    EXPECT_EQ(kStatusColor.transformedValue(status), (Color{0, 0, 0})) << status;
  }
  EXPECT_EQ(kStatusColor.transformedValue(std::nullopt), (Color{0, 0, 0}));
}

TEST(StatusToTextColor, ComparesTheTextsOfTheUsersLanguage) {
  const EmbeddedBundle german({{"Incomplete", "Unvollständig"}, {"Ignored", "Unvollständig"}});
  const StatusTexts texts(german);
  const StatusToTextColorTransformer color(texts);
  EXPECT_EQ(color.transformedValue("Unvollständig"), kRedColor);
  EXPECT_EQ(color.transformedValue("Incomplete"), kBlackColor);
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
