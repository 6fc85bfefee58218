#pragma once

#include <string>
#include <string_view>

namespace glossmill {

/// What the text between quotes stands for. Octal escapes are of NeXTSTEP's encoding; half of a surrogate pair and a
/// byte without a character give U+FFFD.
std::string unescapePlist(std::string_view raw);

/// The text to write between quotes of this kind: without line breaks and control characters.
std::string escapePlist(std::string_view value, char quote);

}  // namespace glossmill
