#pragma once

#include <string_view>

namespace glossmill {

/// The order of names in a string catalog, as far as it is the same everywhere: without case, numbers by their value.
/// Names that differ in case alone come with capitals last.
bool comesBeforeInCatalog(std::string_view a, std::string_view b);

}  // namespace glossmill
