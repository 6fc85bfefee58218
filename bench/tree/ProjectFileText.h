#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace glossmill::bench {

// A project.pbxproj that names `className`.m for every class, and headers as long as it stays below `targetBytes`.
std::string projectFileText(const std::vector<std::string>& classNames, std::size_t targetBytes);

}  // namespace glossmill::bench
