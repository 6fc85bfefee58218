#pragma once

#include <string_view>

#include "platform/FileUrl.h"

namespace glossmill {

/// The absolute form of a path as a person typed it. Links keep their names, but for those that a ".." leads back
/// through. Empty for an empty path and when the working directory is gone.
FileUrl absoluteUrl(std::string_view typed);

/// What follows the directory in the path of something below it; "" for the directory itself and for all else. Valid as
/// long as `url`.
std::string_view pathBelow(const FileUrl& directory, const FileUrl& url);

/// pathBelow(), or the whole path where there is none.
std::string_view shownPath(const FileUrl& directory, const FileUrl& url);

}  // namespace glossmill
