#include "host/HeadlessSheets.h"

#include <algorithm>
#include <utility>

namespace glossmill {

std::vector<HeadlessSheets::Sheet>::const_iterator HeadlessSheets::find(const Window& sheet) const {
  return std::find_if(m_sheets.begin(), m_sheets.end(), [&sheet](const Sheet& up) { return up.window == &sheet; });
}

bool HeadlessSheets::isUp(const Window& sheet) const {
  return find(sheet) != m_sheets.end();
}

void HeadlessSheets::beginSheet(Window& sheet, std::function<void()> didEnd) {
  const auto found = find(sheet);
  if (found != m_sheets.end()) m_sheets.erase(found);
  m_sheets.push_back({&sheet, std::move(didEnd)});
  sheet.show();
}

void HeadlessSheets::endSheet(Window& sheet) {
  const auto found = find(sheet);
  if (found == m_sheets.end()) return;
  const std::function<void()> didEnd = found->didEnd;
  m_sheets.erase(found);
  if (didEnd) didEnd();
}

}  // namespace glossmill
