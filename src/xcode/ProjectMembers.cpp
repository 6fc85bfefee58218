#include "xcode/ProjectMembers.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace glossmill {

namespace {

constexpr ProjectObjects::Number kNotAsked = 0xFFFFFFFF;

std::optional<BuildPhase> phaseOfIsa(std::string_view isa) {
  if (isa == "PBXSourcesBuildPhase") return BuildPhase::Sources;
  if (isa == "PBXResourcesBuildPhase") return BuildPhase::Resources;
  return std::nullopt;
}

/// Targets come in the order of their numbers.
void addTarget(std::vector<std::uint32_t>& targets, std::uint32_t target) {
  if (targets.empty() || targets.back() != target) targets.push_back(target);
}

}  // namespace

ProjectMembers::ProjectMembers(const ProjectObjects& objects, ProjectFile& file)
    : m_objects(objects), m_file(file), m_members(objects.size()), m_references(objects.size(), kNotAsked) {
  m_file.members.resize(1);
  for (const auto id : m_objects.project()["targets"].items()) {
    const Number target = m_objects.find(id.text());
    if (target != ProjectObjects::kNone && !m_targets.contains(target)) takeTarget(target);
  }
}

SynchronizedFolder ProjectMembers::folder(Number object) {
  SynchronizedFolder folder;
  const auto owners = m_owners.find(object);
  if (owners != m_owners.end()) folder.owners = std::move(owners->second);
  for (const auto explicitFolder : m_objects[object]["explicitFolders"].items()) {
    folder.explicitFolders.emplace_back(explicitFolder.text());
  }
  for (const auto id : m_objects[object]["exceptions"].items()) {
    const Number set = m_objects.find(id.text());
    if (m_taken.insert(set).second) takeExceptions(m_objects[set], folder);
  }
  return folder;
}

void ProjectMembers::takeTarget(Number object) {
  const PropertyList::Value target = m_objects[object];
  const auto number = static_cast<std::uint32_t>(m_file.targets.size());
  m_targets[object] = number;
  m_file.targets.emplace_back(target["name"].text());
  for (const auto phase : target["buildPhases"].items()) takePhase(m_objects.find(phase.text()), number);
  for (const auto folder : target["fileSystemSynchronizedGroups"].items()) {
    addTarget(m_owners[m_objects.find(folder.text())], number);
  }
}

/// A phase belongs to one target; Xcode keeps to that.
void ProjectMembers::takePhase(Number object, std::uint32_t target) {
  const PropertyList::Value phase = m_objects[object];
  const std::optional<BuildPhase> kind = phaseOfIsa(phase["isa"].text());
  if (!kind || !m_taken.insert(object).second) return;
  m_phases[object] = {target, *kind};
  for (const auto buildFile : phase["files"].items()) {
    const Number reference = referenceOf(m_objects.find(buildFile.text()));
    if (reference != ProjectObjects::kNone) addMember(reference, {target, *kind});
  }
}

ProjectMembers::Number ProjectMembers::referenceOf(Number buildFile) {
  Number& reference = m_references[buildFile];
  if (reference == kNotAsked) reference = m_objects.find(m_objects[buildFile]["fileRef"].text());
  return reference;
}

void ProjectMembers::addMember(Number object, Phase phase) {
  std::uint32_t& number = m_members[object];
  if (number == 0) {
    number = static_cast<std::uint32_t>(m_file.members.size());
    m_file.members.emplace_back();
    m_all.push_back(object);
  }
  ProjectFile::Members& members = m_file.members[number];
  addTarget(phase.kind == BuildPhase::Sources ? members.compiledBy : members.copiedBy, phase.target);
}

/// Of a target, or of one phase of a target; phases that neither compile nor copy do not matter.
void ProjectMembers::takeExceptions(PropertyList::Value set, SynchronizedFolder& folder) {
  SynchronizedFolder::Exceptions exceptions;
  const auto target = m_targets.find(m_objects.find(set["target"].text()));
  const auto phase = m_phases.find(m_objects.find(set["buildPhase"].text()));
  if (phase != m_phases.end()) {
    exceptions.target = phase->second.target;
    exceptions.phase = phase->second.kind;
  } else if (target != m_targets.end()) {
    exceptions.target = target->second;
  } else {
    return;
  }
  for (const auto path : set["membershipExceptions"].items()) addException(exceptions, path.text());
  folder.exceptions.push_back(std::move(exceptions));
}

}  // namespace glossmill
