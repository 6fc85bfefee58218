#include <gtest/gtest.h>

#include "xcode/InterfaceComment.h"

namespace glossmill {
namespace {

constexpr std::string_view kComment = R"(Class = "NSMenuItem"; title = "Say \"Zoom\"\n"; ObjectID = "5-a";)";

TEST(InterfaceText, IsThatOfThePropertyThatTheKeyNames) {
  EXPECT_EQ(interfaceText("5-a.title", kComment), "Say \"Zoom\"\n");
}

TEST(InterfaceText, IsNothingForOtherKeysAndComments) {
  EXPECT_FALSE(interfaceText("5-a.label", kComment));
  EXPECT_FALSE(interfaceText("6.title", kComment));
  EXPECT_FALSE(interfaceText("title", kComment));
  EXPECT_FALSE(interfaceText("5-a.title", ""));
  EXPECT_FALSE(interfaceText("5-a.title", R"(subtitle = "a"; ObjectID = "5-a";)"));
  EXPECT_FALSE(interfaceText("5.title", R"(ObjectID = "5"; title = "cut)"));
}

}  // namespace
}  // namespace glossmill
