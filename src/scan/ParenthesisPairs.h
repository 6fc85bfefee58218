#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/CancelFlag.h"

namespace glossmill {

/// For each "(" of `opens`, the place of the ")" that brings the count of parentheses back to where it was before it,
/// or the length of `text` when none does. Parentheses count everywhere, also inside string literals. `opens` ascends
/// and may name a place more than once. One pass, however the calls are nested; a cancel leaves the rest unbalanced.
std::vector<std::size_t> closingParentheses(std::string_view text, const std::vector<std::size_t>& opens,
                                            const CancelFlag& canceled);

}  // namespace glossmill
