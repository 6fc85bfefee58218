#pragma once

#include <string_view>

#include "platform/FileUrl.h"
#include "platform/ShownPath.h"

namespace glossmill {

/// The absolute form of a path as a person typed it. Links keep their names, but for those that a ".." leads back
/// through. Empty for an empty path and when the working directory is gone.
FileUrl absoluteUrl(std::string_view typed);

}  // namespace glossmill
