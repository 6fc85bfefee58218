#include <gtest/gtest.h>

#include "xcode/CallTargets.h"

namespace glossmill {
namespace {

using Numbers = CallTargets::TableNumbers;

TableList::Table tableIn(const std::string& directory, const std::string& name, std::vector<std::uint32_t> targets) {
  TableList::Table table{std::make_shared<StringsTable>(), {}, std::move(targets)};
  table.table->directory = FileUrl(directory);
  table.table->name = name;
  return table;
}

class CallTargetsTest : public testing::Test {
 protected:
  Numbers tablesFor(const std::string& name, const MemberFile& source, const Numbers& holding = {}) {
    return CallTargets(m_tables, m_packages).tablesFor(name, source, [&holding](std::uint32_t table) {
      return std::find(holding.begin(), holding.end(), table) != holding.end();
    });
  }

  std::vector<TableList::Table> m_tables{tableIn("/p/app", "Boats", {0}), tableIn("/p/kit", "Boats", {1, 2}),
                                         tableIn("/p/kit", "Crews", {1}), tableIn("/p/tool", "Boats", {2})};
  std::vector<XcodePackage> m_packages{{"/p/p.xcodeproj", "/p", {}, 0}};
};

TEST_F(CallTargetsTest, AllTablesOfATargetThatCompilesTheSource) {
  EXPECT_EQ(tablesFor("Boats", {"/p/a.m", {}, 0, {2}}), (Numbers{1, 3}));
  EXPECT_EQ(tablesFor("Boats", {"/p/a.m", {}, 0, {0}}, {1}), (Numbers{0}));
}

TEST_F(CallTargetsTest, WithoutATargetThoseThatHoldTheKey) {
  EXPECT_EQ(tablesFor("Boats", {"/p/app/a.h", {}, 0, {}}, {1, 3}), (Numbers{1, 3}));
}

TEST_F(CallTargetsTest, OtherwiseTheNearest) {
  EXPECT_EQ(tablesFor("Boats", {"/p/tool/sub/a.h", {}, 0, {}}), (Numbers{3}));
}

TEST_F(CallTargetsTest, OfThoseEquallyNearThatOfTheFirstTargetOfThePackage) {
  m_packages[0].firstTarget = 2;
  m_tables[1].targets = {1};
  EXPECT_EQ(tablesFor("Boats", {"/p/a.h", {}, 0, {}}), (Numbers{3}));
  m_packages[0].firstTarget = 7;
  EXPECT_EQ(tablesFor("Boats", {"/p/a.h", {}, 0, {}}), (Numbers{0}));
}

TEST_F(CallTargetsTest, TheOnlyOneOfItsNameWhereverItIs) {
  EXPECT_EQ(tablesFor("Crews", {"/q/a.m", {}, 0, {0}}), (Numbers{2}));
  EXPECT_EQ(tablesFor("Nobody", {"/p/a.m", {}, 0, {0}}), (Numbers{}));
}

TEST(StepsBetween, CountsUpAndDown) {
  EXPECT_EQ(stepsBetween("/p/a", "/p/a"), 0u);
  EXPECT_EQ(stepsBetween("/p/a", "/p/ab"), 2u);
  EXPECT_EQ(stepsBetween("/p", "/p/a/b"), 2u);
  EXPECT_EQ(stepsBetween("/p/a/b", "/p"), 2u);
  EXPECT_EQ(stepsBetween("/", "/p"), 1u);
}

}  // namespace
}  // namespace glossmill
