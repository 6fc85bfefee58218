#pragma once

#include "exchange/ExchangeFormat.h"

namespace glossmill {

// Tables for spreadsheets: a row a string, a column for each language.

/// The names of the columns in front of the languages.
inline constexpr std::string_view kSheetColumns[] = {"table", "key", "source", "comment"};

WrittenExchange csvText(const ExchangeDocument& document, const ExchangeWish& wish);
WrittenExchange tsvText(const ExchangeDocument& document, const ExchangeWish& wish);

}  // namespace glossmill
