#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "model/StringsTable.h"
#include "xcode/LanguageDirectories.h"
#include "xcode/MemberFiles.h"

namespace glossmill {

/// The tables of a project before their files are read.
struct TableList {
  struct Table {
    std::shared_ptr<StringsTable> table;
    std::vector<MemberFile> files;       ///< those of the table, in its order
    std::vector<std::uint32_t> targets;  ///< that copy one of them, ascending, each once
  };

  std::vector<Table> tables;           ///< in the order of their ids
  std::vector<std::string> languages;  ///< of all directories beside their files, ascending, each once
};

/// What the tables are made of beside their files.
struct TableInput {
  const std::vector<XcodePackage>& packages;
  FolderListings& folders;
  const PathGlobs& excluded;
  std::string sourceLanguage;  ///< what somebody said; empty: what the packages say
};

/// Puts strings files together to tables, with those beside them in other `.lproj` directories.
/// A string catalog is a table of its own, whose languages are known when it has been read.
TableList collectTables(const std::vector<MemberFile>& strings, const std::vector<MemberFile>& catalogs,
                        const TableInput& input);

}  // namespace glossmill
