#pragma once

#include <span>

#include "exchange/ExchangeFormat.h"

namespace glossmill {

/// XLIFF 1.2, bundles of Xcode's around it, and XLIFF 2.0.
std::span<const ExchangeFormat> xmlFormats();

}  // namespace glossmill
