#pragma once

#include <QComboBox>

#include "app/ViewFilter.h"
#include "platform/Bundle.h"

namespace glossmill {

/// Narrows the view to one table of the project; hidden where there is nothing to choose. All of it outlives this.
class TablePopUp {
 public:
  TablePopUp(QComboBox& box, ProjectWindowController& project, ViewFilter& view, const Bundle& bundle);

  /// Whether the project that is open has several tables.
  bool isOffered() const { return m_box.count() > 1; }

 private:
  void fill();
  void narrow();

  QComboBox& m_box;
  ProjectWindowController& m_project;
  ViewFilter& m_view;
  const Bundle& m_bundle;
};

}  // namespace glossmill
