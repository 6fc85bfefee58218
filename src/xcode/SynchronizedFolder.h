#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace glossmill {

/// What a target does with a file: sources are compiled, resources copied.
enum class BuildPhase { Sources, Resources };

/// A folder whose files belong to a project without being listed. They belong to the targets that own the folder, but
/// for exceptions.
struct SynchronizedFolder {
  /// Files that a target that owns the folder leaves out, and any other takes in.
  struct Exceptions {
    std::uint32_t target = 0;
    std::optional<BuildPhase> phase;  ///< nothing: both
    /// Files and directories, from the folder.
    std::unordered_set<std::string> paths;
    /// Files that lie in the `.lproj` directories beside, the `.lproj` left out of their paths.
    std::unordered_set<std::string> localizedPaths;

    bool hold(std::string_view file) const;
  };

  std::string path;                   ///< from the package's directory, like those of files
  std::vector<std::uint32_t> owners;  ///< ascending, each once
  std::vector<Exceptions> exceptions;
  std::vector<std::string> explicitFolders;  ///< from the folder; copied as they are, with all that is inside

  /// The targets that have a file in this phase, ascending, each once. `path` is from the folder, as
  /// `de.lproj/a.strings`.
  std::vector<std::uint32_t> targetsOf(std::string_view file, BuildPhase phase) const;
};

/// Adds a path as project files spell it; one with a `.lproj` in it means nothing.
void addException(SynchronizedFolder::Exceptions& exceptions, std::string_view path);

}  // namespace glossmill
