#include "host/HeadlessMenu.h"

#include <algorithm>

namespace glossmill {

bool HeadlessMenu::choose(std::string_view title) {
  const auto found = std::find_if(m_items.begin(), m_items.end(),
                                  [title](const MenuItem& item) { return !item.isSeparator && item.title == title; });
  if (found == m_items.end() || !found->action) return false;
  const std::function<void()> action = found->action;
  action();
  return true;
}

}  // namespace glossmill
