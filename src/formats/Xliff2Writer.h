#pragma once

#include "exchange/ExchangeFormat.h"

namespace glossmill {

/// XLIFF 2.0, in the first of the languages: a `file` for each strings file, and a `unit` with one segment for each
/// string, with the key as its name. Characters that XML lacks stand in source and target as elements of their own.
WrittenExchange xliff2Text(const ExchangeDocument& document, const ExchangeWish& wish);

}  // namespace glossmill
