#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xcode/ProjectFile.h"
#include "xcode/ProjectMembers.h"
#include "xcode/ProjectObjects.h"

namespace glossmill {

/// Walks through the groups of a project and adds the files and folders in them to `file`. Each object is taken once,
/// where it is met first, so groups that hold themselves do no harm.
class ProjectGroups {
 public:
  ProjectGroups(const ProjectObjects& objects, ProjectMembers& members, ProjectFile& file);

  void take(ProjectObjects::Number object);

 private:
  struct Group {
    PropertyList::Items::Iterator next;
    PropertyList::Items::Iterator end;
    std::optional<std::string> path;  ///< nothing for what is not among the project's files
    std::uint32_t members = 0;        ///< of a group that stands for the files in it
  };

  using Number = ProjectObjects::Number;

  void takeChild(Number object, const std::optional<std::string>& base, std::uint32_t groupMembers);
  void takeFile(Number object, const std::optional<std::string>& base, std::uint32_t groupMembers);
  void takeFolder(Number object, const std::optional<std::string>& base);
  void open(Number object, std::optional<std::string> path);
  std::optional<std::string> pathOf(Number object, const std::optional<std::string>& base) const;

  const ProjectObjects& m_objects;
  ProjectMembers& m_members;
  ProjectFile& m_file;
  std::vector<bool> m_isTaken;
  std::vector<Group> m_open;
};

}  // namespace glossmill
