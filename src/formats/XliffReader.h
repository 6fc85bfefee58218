#pragma once

#include <string>

#include "exchange/ExchangeUnit.h"
#include "text/Result.h"

namespace glossmill {

/// Reads XLIFF 1.2 and 2.0. A unit whose translation holds tags that stand for more than the text between them is
/// rejected, since a strings file has no place for them. A file that is not well formed is an error.
Result<ExchangeDocument> readXliff(const std::string& text);

}  // namespace glossmill
