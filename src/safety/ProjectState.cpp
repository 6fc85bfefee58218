#include "safety/ProjectState.h"

#include <string>

#include "text/ContentHash.h"

namespace glossmill {

Result<FileUrl> stateDirectoryOf(SaveDisk& disk, const FileUrl& project) {
  const Result<FileUrl> state = disk.stateDirectory();
  if (!state) return state;
  const Result<FileUrl> resolved = disk.resolve(project);
  const FileUrl& real = resolved ? resolved.value() : project;
  const std::string name = std::string(real.lastPathComponent()) + "-" + contentHashOf(real.path()).text();
  return state.value().appending("projects").appending(name);
}

}  // namespace glossmill
