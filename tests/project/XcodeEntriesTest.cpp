#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "project/XcodeEntries.h"

namespace glossmill {
namespace {

using Lines = std::vector<std::string>;

Lines entriesOf(std::string bytes, std::optional<std::uint32_t> encoding = std::nullopt) {
  Lines lines;
  const FileEntries file = xcodeEntries(bytes, encoding);
  for (const FileEntry& entry : file.entries) {
    lines.push_back(std::to_string(entry.line) + ":" + std::to_string(entry.column) + " " +
                    std::string(entry.key.view()) + "=" + std::string(entry.value.view()));
  }
  return lines;
}

TEST(XcodeEntries, StandWhereTheirKeysBegin) {
  EXPECT_EQ(entriesOf("/* \xF0\x9F\x9A\xA2 */ \"a\" = \"1\";\r\n b = c;\r\n\"k\";"),
            (Lines{"1:10 a=1", "2:2 b=c", "3:1 k=k"}));
}

TEST(XcodeEntries, HaveValuesAndNotSpellings) {
  EXPECT_EQ(entriesOf("\"a\\\"\" = \"\\U00e4\";"), Lines{"1:1 a\"=\xC3\xA4"});
}

TEST(XcodeEntries, AreThoseInFrontOfAMistake) {
  EXPECT_EQ(entriesOf("a = b;\na = ;\nc = d;"), Lines{"1:1 a=b"});
}

TEST(XcodeEntries, AreReadInTheEncodingOfTheProject) {
  constexpr std::uint32_t kMacRoman = 30;
  EXPECT_EQ(entriesOf("a = \"\x8A\";", kMacRoman), Lines{"1:1 a=\xC3\xA4"});
}

}  // namespace
}  // namespace glossmill
