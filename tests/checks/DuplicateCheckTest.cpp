#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "checks/DuplicateCheck.h"

namespace glossmill {
namespace {

/// Entries on the lines from 1 on.
FileEntries fileOf(std::initializer_list<std::pair<std::string_view, std::string_view>> entries) {
  FileEntries file;
  std::uint32_t line = 0;
  for (const auto& [key, value] : entries) {
    file.entries.push_back({file.texts.add(key), file.texts.add(value), ++line, 1});
  }
  return file;
}

/// "severity: entry of line" for each finding.
std::vector<std::string> found(const FileEntries& file) {
  std::vector<std::string> lines;
  for (const EntryFinding& found : duplicateFindings(file)) {
    EXPECT_EQ(found.finding.check, Check::Duplicate);
    lines.push_back((found.finding.severity == Severity::Error ? "error: " : "warning: ") +
                    std::to_string(found.entry + 1) + " as " + found.finding.what);
  }
  return lines;
}

using Lines = std::vector<std::string>;

TEST(DuplicateCheck, FindsNothingWhereEachKeyStandsOnce) {
  EXPECT_EQ(found(fileOf({{"a", "x"}, {"A", "x"}, {"", "x"}})), Lines());
  EXPECT_EQ(found(fileOf({})), Lines());
}

TEST(DuplicateCheck, FindsARepeatedKeyAtItsLastEntry) {
  EXPECT_EQ(found(fileOf({{"a", "x"}, {"b", "y"}, {"a", "x"}, {"a", "x"}})), (Lines{"warning: 4 as 1"}));
}

TEST(DuplicateCheck, AnotherTextIsAnErrorAndSaysWhereItStands) {
  EXPECT_EQ(found(fileOf({{"b", "1"}, {"a", "x"}, {"a", "y"}, {"b", "2"}, {"a", "x"}})),
            (Lines{"error: 4 as 1", "error: 5 as 3"}));
}

}  // namespace
}  // namespace glossmill
