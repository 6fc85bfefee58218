#pragma once

#include <functional>
#include <vector>

namespace glossmill {

/// What has just become of the open project.
enum class ProjectMoment {
  Opened,  ///< it was read, and is shown
  Closed,  ///< nothing of it is left
  Saved,   ///< a save was tried; what became of it is in lastSave()
};

/// Who hears of these moments, in the order in which they came; nobody goes before the project. Main thread.
class ProjectObservers {
 public:
  using Observer = std::function<void(ProjectMoment)>;

  void add(Observer observer) { m_observers.push_back(std::move(observer)); }
  void tell(ProjectMoment moment) const {
    for (const Observer& observer : m_observers) observer(moment);
  }

 private:
  std::vector<Observer> m_observers;
};

}  // namespace glossmill
