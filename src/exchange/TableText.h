#pragma once

#include <string>
#include <string_view>

#include "exchange/ExchangeUnit.h"
#include "exchange/ImportText.h"
#include "text/Result.h"

namespace glossmill {

// The text for translators of a project with tables: the same blocks, whose first line names the table. Comment, key
// and translation are one line each, in which \n, \r, \t and \\ stand for line feeds, carriage returns, tabs and
// backslashes, so that a text comes back as it was.

/// Appends the block of one string of a table; nothing for one without a table.
void appendTableBlock(std::string& text, const ExchangeUnit& unit);

/// Reads a filled-in text: the texts by importKey(). An empty translation gives no entry; a later block with the same
/// key replaces the earlier one. Line ends may have become those of another system.
ImportTable tableTextImport(std::string_view text);

/// The same as units, in the order of their keys. Never fails.
Result<ExchangeDocument> readTableText(const std::string& text);

}  // namespace glossmill
