#pragma once

#include <string>
#include <string_view>

#include "exchange/ExchangeFormat.h"

namespace glossmill {

/// A PO file of gettext, in the first of the languages. The context of an entry names table and key, its id is the
/// source text. A translation that gettext's own check would refuse is marked as fuzzy.
WrittenExchange poText(const ExchangeDocument& document, const ExchangeWish& wish);

/// "table:key", where a colon of the table's id stands as "%3A" and a percent sign as "%25". A string without a table
/// is one of Localizable.
std::string poContext(std::string_view table, std::string_view key);

}  // namespace glossmill
