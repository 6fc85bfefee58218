#pragma once

#include <cstddef>
#include <string_view>

namespace glossmill {

inline constexpr std::size_t kCallNameLength = 17;  // of "NSLocalizedString"

/// The place of the next "NSLocalizedString" in `source` at or after `from`, whatever the case of its letters and
/// whatever stands around them (rule 12); the length of `source` when there is none.
std::size_t findLocalizedStringCall(std::string_view source, std::size_t from);

}  // namespace glossmill
