#include "app/ChangedStrings.h"

#include <utility>

namespace glossmill {

ChangedStrings::ChangedStrings(ProjectWindowController& project) : m_project(project) {
  m_project.edits().addObserver([this](const Edit&, const EditStep&) { m_isOutdated = true; });
  m_project.observers().add([this](ProjectMoment) {
    m_isOutdated = true;
    m_records.clear();
  });
}

bool ChangedStrings::holds(const LocalizeString& record) {
  if (std::exchange(m_isOutdated, false)) m_records = m_project.unsavedStrings();
  return m_records.contains(&record);
}

}  // namespace glossmill
