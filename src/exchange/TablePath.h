#pragma once

#include <string>
#include <string_view>

namespace glossmill {

/// The id of the table that the file at this path belongs to: "app/Boats" for "app/en.lproj/Boats.strings", and for
/// what Xcode names in its place, such as "app/Base.lproj/Boats.xib". Takes a path below the project.
std::string tableOfPath(std::string_view path);

}  // namespace glossmill
