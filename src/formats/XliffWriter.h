#pragma once

#include "exchange/ExchangeFormat.h"

namespace glossmill {

/// XLIFF 1.2 as Xcode exchanges it, in the first of the languages: a `file` for each strings file, named by its path in
/// the source language, and a `trans-unit` for each string, with the key as its id.
WrittenExchange xliffText(const ExchangeDocument& document, const ExchangeWish& wish);

}  // namespace glossmill
