#pragma once

#include <string_view>

namespace glossmill {

/// What the text of a project file says to be its development region, without quotes; "" when it says nothing. A plain
/// search: the first of several counts. A view of the text.
std::string_view developmentRegionOf(std::string_view projectFile);

}  // namespace glossmill
