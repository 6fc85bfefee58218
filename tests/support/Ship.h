#pragma once

namespace glossmill {

/// U+1F6A2 in UTF-8, a surrogate pair in UTF-16.
inline constexpr const char* kShip = "\xF0\x9F\x9A\xA2";

}  // namespace glossmill
