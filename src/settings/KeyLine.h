#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

/// The line, from 1, on which the outermost object of a correct JSON text has this key; 1 when the key is spelled with
/// escapes. The last line counts where it stands there more than once, as its value does.
std::size_t lineOfKey(std::string_view text, std::string_view key);

}  // namespace glossmill
