#pragma once

#include <QAction>
#include <QMenu>
#include <QPushButton>

#include "app/ChangedStrings.h"
#include "app/ViewFilter.h"
#include "platform/Bundle.h"

namespace glossmill {

/// A button with a menu of what the view shows only, each to be combined with the others. Says on itself what is on.
class OnlyButton {
 public:
  /// All of it outlives this.
  OnlyButton(QPushButton& button, ProjectWindowController& project, ViewFilter& view, const Bundle& bundle);

 private:
  void add(ViewPart part, std::string_view title, ViewFilter::Condition condition);
  void offerWhatThereIs();
  void showOnButton();

  QPushButton& m_button;
  ProjectWindowController& m_project;
  ViewFilter& m_view;
  const Bundle& m_bundle;
  ChangedStrings m_changed;
  QMenu m_menu;
  QAction* m_unused = nullptr;
};

}  // namespace glossmill
