#pragma once

#include <string>
#include <string_view>

#include "text/Result.h"

namespace glossmill {

/// The text that the string literals in `source` stand for together. Nothing else that stands there counts, neither
/// "@", CFSTR and parentheses nor comments. Escapes are those of C; octal and \x ones are bytes of UTF-8, and what
/// comes out must be UTF-8. An error says what is wrong with the literal.
Result<std::string> cLiteralValue(std::string_view source);

}  // namespace glossmill
