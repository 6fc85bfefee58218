#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "xcode/CallList.h"
#include "xcode/CallTargets.h"
#include "xcode/TableRows.h"

namespace glossmill {

/// Which tables hold the keys of calls. What the tables of one name hold is looked through once, when somebody asks for
/// that name.
class KeyHolders {
 public:
  using TableNumbers = CallTargets::TableNumbers;

  /// Both outlive this; `rows` by the numbers of tables.
  KeyHolders(const CallList& calls, const std::vector<TableRows>& rows) : m_calls(calls), m_rows(rows) {}

  /// Those of `named`, which are all tables of the name that the call names, that hold its key; ascending. Valid until
  /// something is added.
  const TableNumbers& of(const CallList::Call& call, const TableNumbers& named);
  /// The call has gone to this table, which holds its key from now on.
  void add(const CallList::Call& call, std::uint32_t table);

 private:
  using ByKey = std::unordered_map<KeyIndex::Number, TableNumbers>;

  const CallList& m_calls;
  const std::vector<TableRows>& m_rows;
  std::unordered_map<KeyIndex::Number, ByKey> m_holders;  ///< by the names of tables, as calls number them
};

}  // namespace glossmill
