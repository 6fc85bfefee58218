#include <gtest/gtest.h>

#include <set>

#include "checks/CheckList.h"

namespace glossmill {
namespace {

TEST(CheckList, StandsInTheOrderOfTheChecks) {
  for (const CheckEntry& entry : checkList()) EXPECT_EQ(entryOf(entry.check).name, entry.name);
  EXPECT_EQ(checkList().back().check, Check::NotLiteral);
  EXPECT_EQ(checkList().size(), static_cast<std::size_t>(Check::NotLiteral) + 1);
}

TEST(CheckList, FindsChecksByTheirNames) {
  EXPECT_EQ(checkNamed("white-space"), Check::WhiteSpace);
  EXPECT_EQ(checkNamed("not-kept"), Check::NotKept);
  EXPECT_EQ(checkNamed("White-Space"), std::nullopt);
  EXPECT_EQ(checkNamed(""), std::nullopt);
}

TEST(CheckList, NamesSeverities) {
  EXPECT_EQ(nameOf(Severity::Warning), "warning");
  EXPECT_EQ(severityNamed("error"), Severity::Error);
  EXPECT_EQ(severityNamed("fatal"), std::nullopt);
  EXPECT_LT(Severity::Info, Severity::Warning);
  EXPECT_LT(Severity::Warning, Severity::Error);
}

TEST(CheckList, HasASentenceOfItsOwnForEachKindOfFinding) {
  std::set<std::string_view> sentences;
  constexpr int kKinds = static_cast<int>(FindingKind::ReportedProblem) + 1;
  for (int kind = 0; kind < kKinds; ++kind) sentences.insert(sentenceOf(static_cast<FindingKind>(kind)));
  EXPECT_EQ(sentences.size(), static_cast<std::size_t>(kKinds));
}

}  // namespace
}  // namespace glossmill
