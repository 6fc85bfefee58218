#pragma once

#include <functional>
#include <string>

namespace glossmill {

/// One item of a menu that the program fills itself; a separator has no title.
struct MenuItem {
  std::string title;
  int tag = 0;
  std::function<void()> action;
  bool isSeparator = false;
};

/// The recent-projects submenu. Main thread.
class Menu {
 public:
  virtual ~Menu() = default;
  virtual void removeAllItems() = 0;
  virtual void addItem(MenuItem item) = 0;
};

}  // namespace glossmill
