#include <gtest/gtest.h>

#include "exchange/TablePath.h"

namespace glossmill {
namespace {

TEST(TablePath, IsDirectoryAndNameWithoutTheLanguage) {
  EXPECT_EQ(tableOfPath("en.lproj/Localizable.strings"), "Localizable");
  EXPECT_EQ(tableOfPath("app/mac/Base.lproj/Main.menu.xib"), "app/mac/Main.menu");
  EXPECT_EQ(tableOfPath("app/Localizable.xcstrings"), "app/Localizable");
  EXPECT_EQ(tableOfPath("./app//de.lproj/.strings"), "app/.strings");
  EXPECT_EQ(tableOfPath(""), "");
}

}  // namespace
}  // namespace glossmill
