#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "exchange/ExchangeUnit.h"
#include "text/Result.h"

namespace glossmill {

/// Key to translation, as a filled-in export file gives them.
using ImportTable = std::unordered_map<std::string, std::string>;

/// Reads a filled-in export text: comments go by the rules of strings files (rule 51), then each block is a line with
/// "---" in it, one line that is skipped, the key and the translation. An empty translation gives no entry; a later
/// block with the same key replaces the earlier one. A carriage return stays part of its line.
ImportTable importTable(std::string_view text);

/// The entries in the order of their keys.
std::map<std::string, std::string> sortedTable(ImportTable table);

/// The same as units, in the order of their keys. Never fails.
Result<ExchangeDocument> readExportText(const std::string& text);

}  // namespace glossmill
