#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "model/Problem.h"
#include "platform/CancelFlag.h"
#include "text/PathGlobs.h"
#include "xcode/FolderListings.h"
#include "xcode/ProjectFile.h"

namespace glossmill {

/// A project package with what its file says.
struct XcodePackage {
  std::string path;
  std::string directory;  ///< that holds it
  ProjectFile file;
  std::uint32_t firstTarget = 0;  ///< targets of all packages are numbered one after the other
};

/// What a search for packages works on; all of it outlives the search.
struct PackageInput {
  FolderListings& folders;
  const PathGlobs& excluded;  ///< of paths below the root
  const CancelFlag& canceled;
};

/// The packages at the least depth below the root that hold a project file.
std::vector<std::string> findPackages(const PackageInput& input);

/// These packages and those that they reference, each once, in the order in which they are met. One whose file cannot
/// be read or parsed has a file with an error.
std::vector<XcodePackage> readPackages(const std::vector<std::string>& paths, const PackageInput& input,
                                       const std::function<void(Problem)>& report);

/// "/p/a" gives "a" below the root "/p"; what is not below gives itself.
std::string_view pathBelowRoot(std::string_view root, std::string_view path);

}  // namespace glossmill
