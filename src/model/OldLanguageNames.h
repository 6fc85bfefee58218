#pragma once

#include <string_view>

namespace glossmill {

/// The code of a language by its name of former times (English gives en); "" for any other text.
std::string_view codeOfOldName(std::string_view name);

}  // namespace glossmill
