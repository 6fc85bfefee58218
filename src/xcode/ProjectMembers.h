#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "xcode/ProjectFile.h"
#include "xcode/ProjectObjects.h"

namespace glossmill {

/// Who compiles and copies what: the targets of a project with their phases.
class ProjectMembers {
 public:
  /// Adds names and members to `file`. Both outlive this.
  ProjectMembers(const ProjectObjects& objects, ProjectFile& file);

  /// The number of the members of a reference or a group.
  std::uint32_t membersOf(ProjectObjects::Number object) const { return m_members[object]; }
  /// All that has members, in the order of the phases.
  const std::vector<ProjectObjects::Number>& all() const { return m_all; }
  /// A synchronized folder with its owners and exceptions. Call it once for each.
  SynchronizedFolder folder(ProjectObjects::Number object);

 private:
  using Number = ProjectObjects::Number;

  /// What a phase does, and for whom.
  struct Phase {
    std::uint32_t target = 0;
    BuildPhase kind = BuildPhase::Sources;
  };

  void takeTarget(Number object);
  void takePhase(Number object, std::uint32_t target);
  void addMember(Number object, Phase phase);
  void takeExceptions(PropertyList::Value set, SynchronizedFolder& folder);
  Number referenceOf(Number buildFile);

  const ProjectObjects& m_objects;
  ProjectFile& m_file;
  std::vector<std::uint32_t> m_members;  ///< by the numbers of objects
  std::vector<Number> m_references;      ///< what build files name, as far as they were asked
  std::vector<Number> m_all;
  std::unordered_map<Number, std::uint32_t> m_targets;
  std::unordered_map<Number, Phase> m_phases;                       ///< of sources and resources
  std::unordered_map<Number, std::vector<std::uint32_t>> m_owners;  ///< of synchronized folders
  std::unordered_set<Number> m_taken;                               ///< phases and sets of exceptions
};

}  // namespace glossmill
