#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "platform/Menu.h"

namespace glossmill {

/// A menu that keeps its items and shows nothing.
class HeadlessMenu : public Menu {
 public:
  void removeAllItems() override { m_items.clear(); }
  void addItem(MenuItem item) override { m_items.push_back(std::move(item)); }

  const std::vector<MenuItem>& items() const { return m_items; }
  /// Does what the first item with this title does; false when there is none. The action may rebuild the menu.
  bool choose(std::string_view title);

 private:
  std::vector<MenuItem> m_items;
};

}  // namespace glossmill
