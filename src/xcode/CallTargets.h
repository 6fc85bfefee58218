#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "xcode/CallList.h"
#include "xcode/MemberFiles.h"
#include "xcode/TableList.h"

namespace glossmill {

/// To which tables calls go: those of the name that belong to a target that compiles the source; if there is none,
/// those that hold the key already; if none, the nearest one.
class CallTargets {
 public:
  using TableNumbers = std::vector<std::uint32_t>;
  using HoldsKey = std::function<bool(std::uint32_t table)>;

  /// Both outlive this.
  CallTargets(const std::vector<TableList::Table>& tables, const std::vector<XcodePackage>& packages);

  /// Ascending; empty only when no table has the name.
  TableNumbers tablesFor(std::string_view name, const MemberFile& source, const HoldsKey& holdsKey);

 private:
  struct Choice {
    TableNumbers ofTargets;
    TableNumbers nearest;  ///< when there are none
  };

  const Choice& choiceFor(std::string_view name, const MemberFile& source);
  std::uint32_t nearestOf(const TableNumbers& named, const MemberFile& source) const;
  bool belongsToFirstTarget(std::uint32_t table, std::uint32_t package) const;

  const std::vector<TableList::Table>& m_tables;
  const std::vector<XcodePackage>& m_packages;
  std::unordered_map<std::string_view, TableNumbers> m_named;
  const MemberFile* m_source = nullptr;                    ///< that was asked about last
  std::unordered_map<std::string_view, Choice> m_choices;  ///< for it, by the names of tables
};

/// How many steps up and down the tree lead from one directory to another.
std::size_t stepsBetween(std::string_view from, std::string_view to);

}  // namespace glossmill
