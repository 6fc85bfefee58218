#pragma once

#include <string>
#include <string_view>

namespace glossmill {

/// What stands between two quotes of JSON, read. Half a surrogate pair is U+FFFD; without mistakes.
std::string unescapeJson(std::string_view spelled);

/// The text to write between two quotes: `\"`, `\\`, `\b \f \n \r \t`, other control characters by number, all else as
/// it is. Xcode writes it so.
std::string escapeJson(std::string_view value);

/// Where the escape ends whose backslash stands at `at`; `at` when it is none.
std::size_t endOfJsonEscape(std::string_view text, std::size_t at);

}  // namespace glossmill
