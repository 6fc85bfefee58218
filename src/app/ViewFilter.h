#pragma once

#include <functional>
#include <map>

#include "project/ProjectWindowController.h"

namespace glossmill {

/// What a view can be narrowed by.
enum class ViewPart { Search, Table, Untranslated, Unused, Changed };

/// Which strings the window's table shows: those that meet every condition that is set. A view only: the lists, saves
/// and counts know nothing of it. Main thread.
class ViewFilter {
 public:
  using Condition = std::function<bool(const LocalizeString&)>;

  /// `strings` outlive the filter.
  explicit ViewFilter(ProjectWindowController::StringController& strings) : m_strings(strings) {}

  /// The empty condition lets every string through. The selected string stays selected if it is still there, else the
  /// first one is.
  void set(ViewPart part, Condition condition);
  bool isSet(ViewPart part) const { return m_conditions.contains(part); }
  bool isEmpty() const { return m_conditions.empty(); }
  /// Looks at all strings anew. The selected one stays in the table, whatever has become of it.
  void refresh();

 private:
  bool shows(const LocalizeString& record) const;
  void arrange();

  ProjectWindowController::StringController& m_strings;
  std::map<ViewPart, Condition> m_conditions;
  std::shared_ptr<LocalizeString> m_kept;
};

}  // namespace glossmill
