#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "text/Format.h"

namespace glossmill {
namespace {

TEST(FormatText, PutsATextInItsPlace) {
  EXPECT_EQ(formatText("Parsing file: %@", {"Foo.m"}), "Parsing file: Foo.m");
}

TEST(FormatText, FillsPlacesInTheOrderOfTheArguments) {
  EXPECT_EQ(formatText("%@ to ISO639: %@", {"English", std::string("en")}), "English to ISO639: en");
}

TEST(FormatText, PutsNumbersInTheirPlaces) {
  EXPECT_EQ(formatText("Lines: %ld", {std::int64_t{12}}), "Lines: 12");
  EXPECT_EQ(formatText("%@: %ld missing", {"de", std::int64_t{0}}), "de: 0 missing");
}

TEST(FormatText, PrintsNegativeNumbersWithASign) {
  EXPECT_EQ(formatText("%ld missing", {std::int64_t{-1}}), "-1 missing");
}

TEST(FormatText, PrintsTheOutermostNumbers) {
  EXPECT_EQ(formatText("%ld", {std::numeric_limits<std::int64_t>::min()}), "-9223372036854775808");
  EXPECT_EQ(formatText("%ld", {std::numeric_limits<std::int64_t>::max()}), "9223372036854775807");
}

TEST(FormatText, PrintsNullInParenthesesForAMissingText) {
  EXPECT_EQ(formatText("Missing for language: %@", {std::optional<std::string>()}), "Missing for language: (null)");
}

TEST(FormatText, PrintsNothingForAnEmptyText) {
  EXPECT_EQ(formatText("<%@>", {""}), "<>");
  EXPECT_EQ(formatText("<%@>", {std::optional<std::string>("")}), "<>");
}

TEST(FormatText, PrintsThePresentTextOfAnOptional) {
  EXPECT_EQ(formatText("%@", {std::optional<std::string>("German")}), "German");
}

TEST(FormatText, TurnsTwoPercentSignsIntoOne) {
  EXPECT_EQ(formatText("100%% of %@", {"de"}), "100% of de");
  EXPECT_EQ(formatText("%%@", {"de"}), "%@");
  EXPECT_EQ(formatText("%%%@%%", {"de"}), "%de%");
}

TEST(FormatText, KeepsOtherPercentSignsAsTheyAre) {
  EXPECT_EQ(formatText("50% done, %d %l %", {"de"}), "50% done, %d %l %");
}

TEST(FormatText, KeepsAPlaceWithoutAnArgument) {
  EXPECT_EQ(formatText("%@ and %@, %ld", {"one"}), "one and %@, %ld");
}

TEST(FormatText, IgnoresArgumentsWithoutAPlace) {
  EXPECT_EQ(formatText("nothing to fill", {"one", "two"}), "nothing to fill");
  EXPECT_EQ(formatText("", {"one"}), "");
}

TEST(FormatText, DoesNotLookForPlacesInTheArguments) {
  EXPECT_EQ(formatText("%@, %@", {"%@ %ld %%", "b"}), "%@ %ld %%, b");
}

TEST(FormatText, KeepsTextThatIsNotAscii) {
  EXPECT_EQ(formatText("Größe: %@", {"\xF0\x9F\x9A\xA2"}), "Größe: \xF0\x9F\x9A\xA2");
}

}  // namespace
}  // namespace glossmill
