#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glossmill {

/// The text as one word of printable ASCII without blanks: every byte but letters, digits and /-._~!$&'()*+,=:@ stands
/// as %XX. The empty text gives "%", so that it is a word too.
std::string percentForm(std::string_view text);

/// Nothing for what percentForm() does not give.
std::optional<std::string> fromPercentForm(std::string_view word);

}  // namespace glossmill
