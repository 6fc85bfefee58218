#pragma once

#include <string>

#include "exchange/ExchangeUnit.h"
#include "text/Result.h"

namespace glossmill {

/// Reads a table for spreadsheets: the first row names the columns, of which "key" has to be one; a column of no other
/// name that is known is a language. Cells are separated by commas, by semicolons or by tabs, as the first row shows.
Result<ExchangeDocument> readCsv(const std::string& text);
Result<ExchangeDocument> readTsv(const std::string& text);

}  // namespace glossmill
