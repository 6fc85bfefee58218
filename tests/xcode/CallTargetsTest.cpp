#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

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

std::vector<std::string> partsOf(std::string_view path) {
  std::vector<std::string> parts;
  for (; path != "/"; path = directoryOf(path)) parts.insert(parts.begin(), std::string(nameOfPath(path)));
  return parts;
}

/// Up from one directory and down to another.
std::size_t stepsBetween(std::string_view from, std::string_view to) {
  const std::vector<std::string> up = partsOf(from);
  const std::vector<std::string> down = partsOf(to);
  const auto common = std::mismatch(up.begin(), up.end(), down.begin(), down.end());
  return static_cast<std::size_t>((up.end() - common.first) + (down.end() - common.second));
}

class CallTargetsTest : public testing::Test {
 protected:
  Numbers tablesFor(const std::string& name, const MemberFile& source, const Numbers& holding = {}) {
    return CallTargets(m_tables, m_packages).tablesFor(name, source, [&holding](const Numbers&) -> const Numbers& {
      return holding;
    });
  }

  std::uint32_t nearestByLooking(const std::string& source) const {
    std::vector<std::tuple<std::size_t, bool, std::uint32_t>> ranks;
    for (std::uint32_t table = 0; table < m_tables.size(); ++table) {
      const bool isFirst = m_tables[table].targets.front() == m_packages[0].firstTarget;
      ranks.emplace_back(stepsBetween(directoryOf(source), m_tables[table].table->directory.path()), !isFirst, table);
    }
    return std::get<std::uint32_t>(*std::min_element(ranks.begin(), ranks.end()));
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

TEST_F(CallTargetsTest, WhoeverIsAskedForHoldersIsGivenAllTablesOfTheName) {
  Numbers asked;
  CallTargets(m_tables, m_packages)
      .tablesFor("Boats", {"/p/a.h", {}, 0, {}}, [&asked](const Numbers& named) -> const Numbers& {
        asked = named;
        return asked;
      });
  EXPECT_EQ(asked, (Numbers{0, 1, 3}));
}

TEST_F(CallTargetsTest, TheNearestIsTheFewestStepsUpAndDownAwayAmongMany) {
  m_tables = {tableIn("/p/a/b/c", "Boats", {}), tableIn("/p/a/d", "Boats", {}), tableIn("/p/ab", "Boats", {}),
              tableIn("/q", "Boats", {}), tableIn("/", "Boats", {})};
  EXPECT_EQ(tablesFor("Boats", {"/p/a/b/s.h", {}, 0, {}}), (Numbers{0}));
  EXPECT_EQ(tablesFor("Boats", {"/p/a/s.h", {}, 0, {}}), (Numbers{1}));
  EXPECT_EQ(tablesFor("Boats", {"/p/s.h", {}, 0, {}}), (Numbers{2}));
  EXPECT_EQ(tablesFor("Boats", {"/s.h", {}, 0, {}}), (Numbers{4}));
  EXPECT_EQ(tablesFor("Boats", {"/q/r/s.h", {}, 0, {}}), (Numbers{3}));
}

/// Compares with a look at every table.
TEST_F(CallTargetsTest, TheNearestIsWhatALookAtEveryTableFinds) {
  const std::vector<std::string> directories{"/", "/p", "/p/a", "/p/a/b", "/p/ab", "/p/c/d/e", "/q", "/q/a/b"};
  for (std::size_t seed = 0; seed < 200; ++seed) {
    m_tables.clear();
    for (std::size_t i = 0; i < 2 + seed % 5; ++i) {
      m_tables.push_back(tableIn(directories[(seed * 7 + i * 5) % directories.size()], "Boats",
                                 {static_cast<std::uint32_t>((seed + i) % 3)}));
    }
    m_packages[0].firstTarget = static_cast<std::uint32_t>(seed % 4);
    for (const std::string& directory : directories) {
      const std::string source = pathInside(directory, "s.h");
      ASSERT_EQ(tablesFor("Boats", {source, {}, 0, {}}), (Numbers{nearestByLooking(source)})) << seed << source;
    }
  }
}

}  // namespace
}  // namespace glossmill
