#pragma once

#include <set>

#include "project/ProjectWindowController.h"

namespace glossmill {

/// The strings of the open project that have edits which no save has written. Main thread.
class ChangedStrings {
 public:
  /// `project` outlives this.
  explicit ChangedStrings(ProjectWindowController& project);
  ChangedStrings(const ChangedStrings&) = delete;
  ChangedStrings& operator=(const ChangedStrings&) = delete;

  bool holds(const LocalizeString& record);

 private:
  ProjectWindowController& m_project;
  std::set<const LocalizeString*> m_records;
  bool m_isOutdated = true;
};

}  // namespace glossmill
