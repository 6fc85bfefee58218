#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "checks/FileEntries.h"

namespace glossmill {

/// What xcode's rules take of the bytes of a strings file, and where it stands. `encoding` is the project's number for
/// it. Of a file with a mistake, what stands in front of that.
FileEntries xcodeEntries(std::string_view bytes, std::optional<std::uint32_t> encoding);

}  // namespace glossmill
