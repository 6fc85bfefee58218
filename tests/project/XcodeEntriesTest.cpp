#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "project/XcodeEntries.h"

namespace glossmill {
namespace {

using EntryLines = std::vector<std::string>;

EntryLines xcodeEntriesOf(std::string bytes, std::optional<std::uint32_t> encoding = std::nullopt) {
  EntryLines lines;
  const FileEntries file = xcodeEntries(bytes, encoding);
  for (const FileEntry& entry : file.entries) {
    lines.push_back(std::to_string(entry.line) + ":" + std::to_string(entry.column) + " " +
                    std::string(entry.key.view()) + "=" + std::string(entry.value.view()));
  }
  return lines;
}

TEST(XcodeEntries, StandWhereTheirKeysBegin) {
  EXPECT_EQ(xcodeEntriesOf("/* \xF0\x9F\x9A\xA2 */ \"a\" = \"1\";\r\n b = c;\r\n\"k\";"),
            (EntryLines{"1:10 a=1", "2:2 b=c", "3:1 k=k"}));
}

TEST(XcodeEntries, HaveValuesAndNotSpellings) {
  EXPECT_EQ(xcodeEntriesOf("\"a\\\"\" = \"\\U00e4\";"), EntryLines{"1:1 a\"=\xC3\xA4"});
}

TEST(XcodeEntries, AreThoseInFrontOfAMistake) {
  EXPECT_EQ(xcodeEntriesOf("a = b;\na = ;\nc = d;"), EntryLines{"1:1 a=b"});
}

TEST(XcodeEntries, AreReadInTheEncodingOfTheProject) {
  constexpr std::uint32_t kMacRoman = 30;
  EXPECT_EQ(xcodeEntriesOf("a = \"\x8A\";", kMacRoman), EntryLines{"1:1 a=\xC3\xA4"});
}

}  // namespace
}  // namespace glossmill
