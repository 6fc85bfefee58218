#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "model/Problem.h"
#include "model/ProjectRules.h"
#include "model/TextArena.h"
#include "xcode/CatalogDocument.h"
#include "xcode/TableEntries.h"
#include "xcode/TableList.h"

namespace glossmill {

/// The string catalogs of a project. All of them are read at once, since the rows of each depend on the languages of
/// all: each language has plural categories of its own.
class CatalogReading {
 public:
  /// Gives the tables of catalogs a file for each of their languages, and adds these to the languages of the list.
  CatalogReading(TableList& tables, const ScanInput& input, const std::function<void(Problem)>& report);

  /// What a catalog's table holds; its texts go to `arena`. Once for each.
  TableEntries entriesOf(const TableList::Table& table, TextArena& arena);

 private:
  void read(TableList::Table& table);
  void reportTwin(const TableList::Table& table);
  void report(const FileUrl& file, TextPlace place, std::string_view kind, std::string text);

  TableList& m_tables;
  const ScanInput& m_input;
  const std::function<void(Problem)>& m_report;
  std::map<const StringsTable*, std::unique_ptr<CatalogDocument>> m_documents;
};

}  // namespace glossmill
