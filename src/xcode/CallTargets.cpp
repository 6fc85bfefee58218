#include "xcode/CallTargets.h"

#include <algorithm>
#include <tuple>

namespace glossmill {

namespace {

std::size_t depthOf(std::string_view path) {
  return path == "/" ? 0 : static_cast<std::size_t>(std::count(path.begin(), path.end(), '/'));
}

/// Calls `visit(directory, depth)` with a directory and all above it.
template <typename Visit>
void eachAbove(std::string_view directory, Visit visit) {
  for (std::size_t depth = depthOf(directory); depth > 0; --depth) {
    visit(directory, depth);
    directory = directoryOf(directory);
  }
  visit(std::string_view("/"), 0);
}

/// Orders tables by what matters most.
struct Nearness {
  std::size_t steps = static_cast<std::size_t>(-1);
  std::size_t preference = 0;
  std::uint32_t table = 0;
  bool operator<(const Nearness& other) const {
    return std::tie(steps, preference, table) < std::tie(other.steps, other.preference, other.table);
  }
};

template <typename Highest>
Nearness nearestIn(const Highest& highest, const MemberFile& source, std::size_t preference) {
  const std::string_view directory = directoryOf(source.path);
  const std::size_t from = depthOf(directory);
  Nearness nearest;
  eachAbove(directory, [&](std::string_view above, std::size_t depth) {
    const auto found = highest.find(above);
    if (found == highest.end()) return;
    const auto [tableDepth, table] = found->second;
    nearest = std::min(nearest, Nearness{from + tableDepth - 2 * depth, preference, table});
  });
  return nearest;
}

}  // namespace

CallTargets::CallTargets(const std::vector<TableList::Table>& tables, const std::vector<XcodePackage>& packages)
    : m_tables(tables), m_packages(packages) {
  for (std::uint32_t number = 0; number < tables.size(); ++number) {
    Named& named = m_named[tables[number].table->name];
    named.all.push_back(number);
    for (const std::uint32_t target : tables[number].targets) named.byTarget[target].push_back(number);
  }
}

const CallTargets::TableNumbers& CallTargets::tablesFor(std::string_view name, const MemberFile& source,
                                                        const Holders& holders) {
  static const TableNumbers kNone;
  const auto named = m_named.find(name);
  if (named == m_named.end()) return kNone;
  if (named->second.all.size() == 1) return named->second.all;
  const Choice& choice = choiceFor(named->second, named->first, source);
  if (!choice.ofTargets.empty()) return choice.ofTargets;
  const TableNumbers& holding = holders(named->second.all);
  return holding.empty() ? choice.nearest : holding;
}

/// Calls come source by source.
const CallTargets::Choice& CallTargets::choiceFor(Named& named, std::string_view name, const MemberFile& source) {
  if (m_source != &source) m_choices.clear();
  m_source = &source;
  const auto [known, isNew] = m_choices.try_emplace(name);
  Choice& choice = known->second;
  if (!isNew) return choice;
  TableNumbers& ofTargets = choice.ofTargets;
  for (const std::uint32_t target : source.targets) {
    const auto found = named.byTarget.find(target);
    if (found != named.byTarget.end()) ofTargets.insert(ofTargets.end(), found->second.begin(), found->second.end());
  }
  std::sort(ofTargets.begin(), ofTargets.end());
  ofTargets.erase(std::unique(ofTargets.begin(), ofTargets.end()), ofTargets.end());
  if (ofTargets.empty()) choice.nearest = {nearestOf(named, source)};
  return choice;
}

/// The fewest steps up and down the tree, then one of the first target of the source's package.
std::uint32_t CallTargets::nearestOf(Named& named, const MemberFile& source) const {
  const std::uint32_t target = m_packages[source.package].firstTarget;
  Highest& ofTarget = named.highestByTarget[target];
  const auto tables = named.byTarget.find(target);
  if (ofTarget.empty() && tables != named.byTarget.end()) find(ofTarget, tables->second);
  if (named.highest.empty()) find(named.highest, named.all);
  return std::min(nearestIn(ofTarget, source, 0), nearestIn(named.highest, source, 1)).table;
}

void CallTargets::find(Highest& highest, const TableNumbers& tables) const {
  for (const std::uint32_t table : tables) {
    const std::string_view directory = m_tables[table].table->directory.path();
    const std::pair place(depthOf(directory), table);
    eachAbove(directory, [&](std::string_view above, std::size_t) {
      const auto [known, isNew] = highest.try_emplace(above, place);
      if (!isNew) known->second = std::min(known->second, place);
    });
  }
}

}  // namespace glossmill
