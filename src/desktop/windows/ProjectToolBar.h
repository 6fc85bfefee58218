#pragma once

#include <QToolBar>
#include <utility>
#include <vector>

#include "app/Commands.h"
#include "desktop/windows/CommandActions.h"

namespace glossmill {

/// The project window's tool bar, from the program's table. Its items do what the commands of the menu do, but have
/// rules of their own for being enabled: one whose command has nothing to work on says so in a tip. The bar outlives
/// it.
class ProjectToolBar {
 public:
  ProjectToolBar(QToolBar& bar, CommandActions& actions, AppDelegate& delegate, const Bundle& bundle);

  void validate();

 private:
  void add(const ToolBarItem& item);
  void use(const ToolBarItem& item, QAction& action);
  QString tipOf(const ToolBarItem& item) const;
  QString obstacleOf(const ToolBarItem& item) const;

  QToolBar& m_bar;
  CommandActions& m_actions;
  AppDelegate& m_delegate;
  const Bundle& m_bundle;
  std::vector<std::pair<const ToolBarItem*, QAction*>> m_items;
};

}  // namespace glossmill
