#pragma once

#include <QMenu>
#include <functional>
#include <vector>

#include "platform/Menu.h"

namespace glossmill {

/// The submenu of recent projects.
class RecentMenu : public Menu {
 public:
  /// `isEnabled` decides by an item's tag, each time the menu is opened.
  explicit RecentMenu(std::function<bool(int tag)> isEnabled);

  void removeAllItems() override;
  void addItem(MenuItem item) override;

  QMenu& menu() { return m_menu; }

 private:
  void validate();

  std::function<bool(int tag)> m_isEnabled;
  QMenu m_menu;
};

}  // namespace glossmill
