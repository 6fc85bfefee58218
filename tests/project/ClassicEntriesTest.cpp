#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "project/ClassicEntries.h"

namespace glossmill {
namespace {

using EntryLines = std::vector<std::string>;

/// "line:column key=value"
EntryLines entriesOf(std::string_view text) {
  EntryLines lines;
  const FileEntries file = classicEntries(text);
  for (const FileEntry& entry : file.entries) {
    lines.push_back(std::to_string(entry.line) + ":" + std::to_string(entry.column) + " " +
                    std::string(entry.key.view()) + "=" + std::string(entry.value.view()));
  }
  return lines;
}

/// "line:column text"
EntryLines rejectedOf(std::string_view text) {
  EntryLines lines;
  const FileEntries file = classicEntries(text);
  for (const FileEntry& line : file.rejected) {
    lines.push_back(std::to_string(line.line) + ":" + std::to_string(line.column) + " " + std::string(line.key.view()));
  }
  return lines;
}

TEST(ClassicEntries, StandWhereTheirFirstQuoteIs) {
  EXPECT_EQ(entriesOf("\"a\" = \"1\";\n\n  \"b\"=\"2\"\n"), (EntryLines{"1:1 a=1", "3:3 b=2"}));
  EXPECT_EQ(entriesOf("\"a\" = \"1\""), EntryLines{"1:1 a=1"});
  EXPECT_EQ(entriesOf(""), EntryLines());
}

TEST(ClassicEntries, CountLinesAndColumnsOfTheTextWithItsComments) {
  EXPECT_EQ(entriesOf("/* one\n two */\n\"a\" = \"1\";\n/* x */ \"b\" = \"2\";\n"), (EntryLines{"3:1 a=1", "4:9 b=2"}));
  EXPECT_EQ(entriesOf("// a line\n\"a\" = \"1\"; // behind\n\"b\" = \"2\";\n"), (EntryLines{"2:1 a=1"}));
  EXPECT_EQ(entriesOf("/* \"quoted\" */ \"a\" = \"1\";\n"), EntryLines{"1:16 a=1"});
}

TEST(ClassicEntries, CountColumnsInUtf16Units) {
  EXPECT_EQ(entriesOf("/* \xF0\x9F\x9A\xA2\xC3\xA4 */ \"a\" = \"1\";\n"), EntryLines{"1:11 a=1"});
}

TEST(ClassicEntries, ComeInTheOrderOfTheFileAndAgainWhenTheyAreRepeated) {
  EXPECT_EQ(entriesOf("\"b\" = \"1\";\n\"a\" = \"2\";\n\"b\" = \"3\";\n"),
            (EntryLines{"1:1 b=1", "2:1 a=2", "3:1 b=3"}));
}

TEST(ClassicEntries, RejectedLinesHaveTheirPlace) {
  EXPECT_EQ(rejectedOf("\"a\" = \"1\";\n/* c */ junk\n  more\n"), (EntryLines{"2:8  junk", "3:1   more"}));
  EXPECT_EQ(rejectedOf("\"a\" = \"1\";\n"), EntryLines());
}

TEST(ClassicEntries, AKeyWithoutAValueIsARejectedLineAndShiftsNoValues) {
  constexpr std::string_view kText = "\"a\" = \"1\";\n\"b\" \"2\";\n\"c\" = \"3\";\n\"d\" = 4;\n";
  EXPECT_EQ(entriesOf(kText), (EntryLines{"1:1 a=1", "3:1 c=3"}));
  EXPECT_EQ(rejectedOf(kText), (EntryLines{"2:1 b", "4:1 d"}));
}

/// Each entry's place holds its key between quotes, whatever stands around.
TEST(ClassicEntries, PlacesLeadToTheKeyInAnyMixOfComments) {
  std::mt19937 random(3);
  constexpr std::string_view kPieces[] = {"\"key\" = \"text\";\n", "/* a\nb */", "// c\n", " ", "\n",
                                          "/* \"q\" */",           "x"};
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (auto count = random() % 12; count > 0; --count) text += kPieces[random() % std::size(kPieces)];
    const FileEntries file = classicEntries(text);
    for (const FileEntry& entry : file.entries) {
      std::size_t begin = 0;
      for (std::uint32_t line = 1; line < entry.line; ++line) begin = text.find('\n', begin) + 1;
      EXPECT_EQ(text.substr(begin + entry.column - 1, 5), "\"key\"") << text;
    }
  }
}

}  // namespace
}  // namespace glossmill
