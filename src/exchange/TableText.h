#pragma once

#include <cstdint>
#include <string>

#include "exchange/ImportText.h"
#include "model/ExportScope.h"
#include "model/LocalizeString.h"

namespace glossmill {

// The text for translators of a project with tables: the same blocks, whose first line names the table. Comment, key
// and translation are one line each, in which \n, \r, \t and \\ stand for line feeds, carriage returns, tabs and
// backslashes, so that a text comes back as it was.

/// Appends the block of one record. A record that `scope` leaves out, or that nobody wants a translation of, appends
/// nothing, but is counted.
void appendTableBlock(std::string& text, const LocalizeString& record, std::int64_t number, LanguageCode language,
                      ExportScope scope);

/// Reads a filled-in text: the texts by importKey(). An empty translation gives no entry; a later block with the same
/// key replaces the earlier one. Line ends may have become those of another system.
ImportTable tableTextImport(std::string_view text);

}  // namespace glossmill
