#pragma once

#include <string_view>
#include <vector>

namespace glossmill {

/// The pieces of `text` between the separators; always one more than there are separators, so one for the empty text.
std::vector<std::string_view> split(std::string_view text, char separator);

}  // namespace glossmill
