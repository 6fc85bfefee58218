#pragma once

#include <string_view>

#include "platform/FileUrl.h"

namespace glossmill {

/// What follows the directory in the path of something below it; "" for the directory itself and for all else. Valid as
/// long as `url`.
std::string_view pathBelow(const FileUrl& directory, const FileUrl& url);

/// pathBelow(), or the whole path where there is none.
std::string_view shownPath(const FileUrl& directory, const FileUrl& url);

}  // namespace glossmill
