#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// The keys that lead into a JSON text, the outermost first. An item of a list is led to by its number, from 0.
using JsonWay = std::vector<std::string>;

/// Where a value stands in a text.
struct ScalarPlace {
  std::size_t start = 0;
  std::size_t length = 0;
};

/// Where the text or number lies that the outermost object of a correct JSON text has for this key, the last one where
/// the key stands there more than once; nothing when the key is missing or spelled with escapes.
std::optional<ScalarPlace> scalarOfKey(std::string_view text, std::string_view key);

/// The line, from 1, on which a correct JSON text has the key or the item at the end of the way; 1 when there is none,
/// or a key is spelled with escapes. The last line counts where it stands there more than once, as its value does.
std::size_t lineOfKey(std::string_view text, const JsonWay& way);

}  // namespace glossmill
