#pragma once

#include <string>
#include <vector>

namespace glossmill {

/// Which project is meant, and how it is to be read, as somebody typed it.
struct ProjectChoice {
  std::string directory;
  std::string rules;                  ///< empty: nothing was said
  std::vector<std::string> packages;  ///< from the project's directory
};

}  // namespace glossmill
