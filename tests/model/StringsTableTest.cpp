#include <gtest/gtest.h>

#include "model/StringsTable.h"

namespace glossmill {
namespace {

TEST(StringsTable, FindsTheFileOfALanguageOnly) {
  StringsTable table;
  table.files.push_back({FileUrl("/p/de.lproj/Boats.strings"), LanguageCode("de"), true, {}, false});
  ASSERT_TRUE(table.find(LanguageCode("de")));
  EXPECT_EQ(table.find(LanguageCode("de"))->file.path(), "/p/de.lproj/Boats.strings");
  EXPECT_FALSE(table.find(LanguageCode("fr")));
}

}  // namespace
}  // namespace glossmill
