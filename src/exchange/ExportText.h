#pragma once

#include <string>

#include "exchange/ExchangeUnit.h"

namespace glossmill {

/// What every export text begins with.
inline constexpr const char* kExportTextStart = "\n";

/// Appends the block of one string: number line, comment, key and the first translation, which is empty without an
/// entry. Nothing is escaped.
void appendExportBlock(std::string& text, const ExchangeUnit& unit);

}  // namespace glossmill
