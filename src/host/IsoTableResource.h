#pragma once

#include <string_view>

namespace glossmill {

/// The bytes of the ISO 639-2 table that is built into the program.
std::string_view isoTableResource();

}  // namespace glossmill
