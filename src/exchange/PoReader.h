#pragma once

#include <string>

#include "exchange/ExchangeUnit.h"
#include "text/Result.h"

namespace glossmill {

/// Reads a PO file of gettext. Entries marked as fuzzy are unsure; those with plurals are rejected; obsolete ones are
/// passed over. An entry without a context that names a table has its id for a key.
Result<ExchangeDocument> readPo(const std::string& text);

}  // namespace glossmill
