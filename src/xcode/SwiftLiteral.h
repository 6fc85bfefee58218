#pragma once

#include <string>
#include <string_view>

#include "text/Result.h"

namespace glossmill {

/// The text that one string literal of Swift stands for: plain, raw (#"…"#) or over several lines ("""…"""), from its
/// first "#" or quote to its last. An error says what is wrong with the literal; an interpolation is an error too.
Result<std::string> swiftLiteralValue(std::string_view literal);

}  // namespace glossmill
