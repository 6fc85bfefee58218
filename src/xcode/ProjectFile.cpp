#include "xcode/ProjectFile.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

#include "xcode/ProjectGroups.h"
#include "xcode/ProjectMembers.h"
#include "xcode/ProjectObjects.h"
#include "xcode/ProjectPaths.h"

namespace glossmill {

namespace {

void takeSettings(PropertyList::Value project, ProjectFile& file) {
  file.developmentRegion = project["developmentRegion"].text();
  for (const auto region : project["knownRegions"].items()) file.knownRegions.emplace_back(region.text());
  file.sourceRoot = joinedPath("", project["projectDirPath"].text()).value_or("");
  file.projectRoot = project["projectRoot"].text();
}

/// By their type, or because the project uses their products.
void takeReferencedProjects(ProjectFile& file) {
  std::unordered_set<std::string_view> known;
  for (const ProjectFile::File& reference : file.files) {
    const bool isProject = reference.type == "wrapper.pb-project" || reference.path.ends_with(".xcodeproj");
    if (isProject && known.insert(reference.path).second) file.projects.push_back(reference.path);
  }
}

}  // namespace

std::vector<std::uint32_t> ProjectFile::targetsOf(const File& file, BuildPhase phase) const {
  const auto own = phase == BuildPhase::Sources ? &Members::compiledBy : &Members::copiedBy;
  const std::vector<std::uint32_t>& ofFile = members[file.members].*own;
  const std::vector<std::uint32_t>& ofGroup = members[file.groupMembers].*own;
  std::vector<std::uint32_t> all;
  std::set_union(ofFile.begin(), ofFile.end(), ofGroup.begin(), ofGroup.end(), std::back_inserter(all));
  return all;
}

ProjectFile readProjectFile(const PropertyList& list) {
  ProjectFile file;
  file.error = list.error();
  if (file.error) return file;
  const ProjectObjects objects(list);
  const PropertyList::Value project = objects.project();
  if (!project) {
    file.error = SyntaxError{{1, 1}, "The file holds no project."};
    return file;
  }
  takeSettings(project, file);
  ProjectMembers members(objects, file);
  ProjectGroups groups(objects, members, file);
  groups.take(objects.find(project["mainGroup"].text()));
  for (const auto reference : project["projectReferences"].items()) {
    groups.take(objects.find(reference["ProjectRef"].text()));
  }
  for (const ProjectObjects::Number object : members.all()) groups.take(object);
  takeReferencedProjects(file);
  return file;
}

}  // namespace glossmill
