#include <unordered_set>

#include "fuzz/FuzzSupport.h"
#include "text/TextDecoder.h"
#include "xcode/ProjectFile.h"
#include "xcode/ProjectPaths.h"

namespace glossmill {
namespace {

bool isAscending(const std::vector<std::uint32_t>& targets, std::size_t count) {
  for (std::size_t i = 0; i < targets.size(); ++i) {
    if (targets[i] >= count || (i > 0 && targets[i - 1] >= targets[i])) return false;
  }
  return true;
}

void requireGoodPath(const std::string& path) {
  require(joinedPath("", path) == path, "paths are normalised");
  require(path.size() < 1024, "paths are short");
}

void requireGoodFile(const ProjectFile& project, const ProjectFile::File& file) {
  requireGoodPath(file.path);
  require(file.members < project.members.size() && file.groupMembers < project.members.size(), "members are there");
  for (const BuildPhase phase : {BuildPhase::Sources, BuildPhase::Resources}) {
    require(isAscending(project.targetsOf(file, phase), project.targets.size()), "targets are there, each once");
  }
}

void requireGoodFolder(const ProjectFile& project, const SynchronizedFolder& folder) {
  requireGoodPath(folder.path);
  require(isAscending(folder.owners, project.targets.size()), "owners are there, each once");
  std::vector<std::string> files = {"a.m", "b/c.m", "de.lproj/a.strings"};
  for (const SynchronizedFolder::Exceptions& exceptions : folder.exceptions) {
    require(exceptions.target < project.targets.size(), "exceptions are of a target");
    files.insert(files.end(), exceptions.paths.begin(), exceptions.paths.end());
  }
  for (const std::string& file : files) {
    const std::vector<std::uint32_t> targets = folder.targetsOf(file, BuildPhase::Sources);
    require(isAscending(targets, project.targets.size()), "targets are there, each once");
  }
}

void readProject(const std::string& text) {
  const PropertyList list(text);
  const ProjectFile project = readProjectFile(list);
  require(!list.error() || project.error, "a list with a mistake is no project");
  if (project.error) {
    require(project.files.empty() && project.folders.empty(), "there is nothing but the mistake");
    return;
  }
  for (const ProjectFile::File& file : project.files) requireGoodFile(project, file);
  for (const SynchronizedFolder& folder : project.folders) requireGoodFolder(project, folder);
  const std::unordered_set<std::string> projects(project.projects.begin(), project.projects.end());
  require(projects.size() == project.projects.size(), "a project is referenced once");
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const glossmill::Result<std::string> text = glossmill::decodeText(glossmill::asText(data, size));
  if (text) glossmill::readProject(text.value());
  return 0;
}
