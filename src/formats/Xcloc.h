#pragma once

#include "exchange/ExchangeFormat.h"

namespace glossmill {

/// A bundle as Xcode exports one for each language: what it is about in `contents.json`, and the XLIFF 1.2 below
/// `Localized Contents`.
WrittenExchange xclocFiles(const ExchangeDocument& document, const ExchangeWish& wish);

}  // namespace glossmill
