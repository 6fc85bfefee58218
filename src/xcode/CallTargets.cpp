#include "xcode/CallTargets.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace glossmill {

namespace {

bool haveCommon(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b) {
  auto left = a.begin();
  auto right = b.begin();
  while (left != a.end() && right != b.end()) {
    if (*left == *right) return true;
    *left < *right ? ++left : ++right;
  }
  return false;
}

std::size_t depthOf(std::string_view path) {
  return path == "/" ? 0 : static_cast<std::size_t>(std::count(path.begin(), path.end(), '/'));
}

}  // namespace

CallTargets::CallTargets(const std::vector<TableList::Table>& tables, const std::vector<XcodePackage>& packages)
    : m_tables(tables), m_packages(packages) {
  for (std::uint32_t number = 0; number < tables.size(); ++number) {
    m_named[tables[number].table->name].push_back(number);
  }
}

CallTargets::TableNumbers CallTargets::tablesFor(std::string_view name, const MemberFile& source,
                                                 const HoldsKey& holdsKey) {
  const auto named = m_named.find(name);
  if (named == m_named.end()) return {};
  if (named->second.size() == 1) return named->second;
  const Choice& choice = choiceFor(named->first, source);
  if (!choice.ofTargets.empty()) return choice.ofTargets;
  TableNumbers holding;
  std::copy_if(named->second.begin(), named->second.end(), std::back_inserter(holding), holdsKey);
  return holding.empty() ? choice.nearest : holding;
}

/// Calls come source by source.
const CallTargets::Choice& CallTargets::choiceFor(std::string_view name, const MemberFile& source) {
  if (m_source != &source) m_choices.clear();
  m_source = &source;
  const auto [known, isNew] = m_choices.try_emplace(name);
  Choice& choice = known->second;
  if (!isNew) return choice;
  const TableNumbers& named = m_named.find(name)->second;
  std::copy_if(named.begin(), named.end(), std::back_inserter(choice.ofTargets),
               [&](std::uint32_t table) { return haveCommon(m_tables[table].targets, source.targets); });
  if (choice.ofTargets.empty()) choice.nearest = {nearestOf(named, source)};
  return choice;
}

std::uint32_t CallTargets::nearestOf(const TableNumbers& named, const MemberFile& source) const {
  const std::string_view directory = directoryOf(source.path);
  const auto rank = [&](std::uint32_t table) {
    return std::make_tuple(stepsBetween(directory, m_tables[table].table->directory.path()),
                           !belongsToFirstTarget(table, source.package), table);
  };
  return *std::min_element(named.begin(), named.end(),
                           [&rank](std::uint32_t a, std::uint32_t b) { return rank(a) < rank(b); });
}

bool CallTargets::belongsToFirstTarget(std::uint32_t table, std::uint32_t package) const {
  const std::vector<std::uint32_t>& targets = m_tables[table].targets;
  return std::binary_search(targets.begin(), targets.end(), m_packages[package].firstTarget);
}

std::size_t stepsBetween(std::string_view from, std::string_view to) {
  std::size_t common = 0;
  const std::size_t most = std::min(from.size(), to.size());
  for (std::size_t at = 0; at <= most; ++at) {
    const bool endsPart = (at == from.size() || from[at] == '/') && (at == to.size() || to[at] == '/');
    if (endsPart) common = at;
    if (at == most || from[at] != to[at]) break;
  }
  return depthOf(from.substr(common)) + depthOf(to.substr(common));
}

}  // namespace glossmill
