#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "xcode/MemberFiles.h"
#include "xcode/TableList.h"

namespace glossmill {

/// To which tables calls go: those of the name that belong to a target that compiles the source; if there is none,
/// those that hold the key already; if none, the nearest one. A question costs no more because there are many tables of
/// one name.
class CallTargets {
 public:
  using TableNumbers = std::vector<std::uint32_t>;
  /// Which of the tables of one name hold the key already, ascending; it is given all of them.
  using Holders = std::function<const TableNumbers&(const TableNumbers& named)>;

  /// Both outlive this.
  CallTargets(const std::vector<TableList::Table>& tables, const std::vector<XcodePackage>& packages);

  /// Ascending; empty only when no table has the name. Valid until the next question.
  const TableNumbers& tablesFor(std::string_view name, const MemberFile& source, const Holders& holders);

 private:
  /// Of the tables in a directory or anywhere below, the depth and number of the one of least depth.
  using Highest = std::unordered_map<std::string_view, std::pair<std::size_t, std::uint32_t>>;

  struct Named {
    TableNumbers all;
    std::unordered_map<std::uint32_t, TableNumbers> byTarget;
    Highest highest;  ///< of all; empty until somebody asks
    std::unordered_map<std::uint32_t, Highest> highestByTarget;
  };

  struct Choice {
    TableNumbers ofTargets;
    TableNumbers nearest;  ///< when there are none
  };

  const Choice& choiceFor(Named& named, std::string_view name, const MemberFile& source);
  std::uint32_t nearestOf(Named& named, const MemberFile& source) const;
  void find(Highest& highest, const TableNumbers& tables) const;

  const std::vector<TableList::Table>& m_tables;
  const std::vector<XcodePackage>& m_packages;
  std::unordered_map<std::string_view, Named> m_named;
  const MemberFile* m_source = nullptr;                    ///< that was asked about last
  std::unordered_map<std::string_view, Choice> m_choices;  ///< for it, by the names of tables
};

}  // namespace glossmill
