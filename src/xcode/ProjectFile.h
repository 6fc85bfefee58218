#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "xcode/PropertyList.h"
#include "xcode/SynchronizedFolder.h"

namespace glossmill {

/// What a project file (`project.pbxproj`) says about files and targets. All paths are those of ProjectPaths.h.
/// docs/xcode/project-file.md says what is read.
struct ProjectFile {
  /// Targets by their numbers, ascending, each once.
  struct Members {
    std::vector<std::uint32_t> compiledBy;
    std::vector<std::uint32_t> copiedBy;
  };

  /// A file or a folder that is listed. One path may be listed more than once.
  struct File {
    std::string path;
    std::string type;                       ///< such as "text.plist.strings" or "folder"; empty when it is not said
    std::optional<std::uint32_t> encoding;  ///< a number that encodingOfNumber takes
    std::uint32_t members = 0;              ///< number of its own Members
    std::uint32_t groupMembers = 0;         ///< number of those of the variant group that it is one of
  };

  std::vector<std::string> targets;  ///< their names
  std::vector<File> files;           ///< in the order of the groups, those outside all groups behind
  std::vector<SynchronizedFolder> folders;
  std::vector<Members> members;           ///< the first is nobody
  std::vector<std::string> projects;      ///< packages that this one references, each once
  std::string developmentRegion;          ///< as it is spelled; empty when it is not said
  std::vector<std::string> knownRegions;  ///< as they are spelled
  std::string sourceRoot;                 ///< what paths begin at: projectDirPath
  std::string projectRoot;                ///< as it is spelled; no path begins at it
  std::optional<SyntaxError> error;       ///< then there is nothing else

  /// The targets that have a file in a phase, ascending, each once.
  std::vector<std::uint32_t> targetsOf(const File& file, BuildPhase phase) const;
};

ProjectFile readProjectFile(const PropertyList& list);

}  // namespace glossmill
