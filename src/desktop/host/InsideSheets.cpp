#include "desktop/host/InsideSheets.h"

#include <algorithm>
#include <utility>

#include "app/SheetWindow.h"

namespace glossmill {

void InsideSheets::setWindow(QMainWindow& window) {
  m_window = &window;
  m_layer = new SheetLayer(window);
  m_layer->resized = [this] {
    for (const Sheet& sheet : m_sheets) sheet.panel->place();
  };
  m_layer->revealed = [this] {
    if (isUp()) current()->focusMainField();
  };
}

std::vector<InsideSheets::Sheet>::iterator InsideSheets::find(const Window& sheet) {
  return std::find_if(m_sheets.begin(), m_sheets.end(), [&sheet](const Sheet& up) { return up.content == &sheet; });
}

void InsideSheets::beginSheet(Window& window, std::function<void()> didEnd) {
  const auto found = find(window);
  if (found != m_sheets.end()) {
    found->didEnd = std::move(didEnd);
    return;
  }
  auto& content = static_cast<SheetContent&>(window);
  const QPointer<QWidget> focusBefore = m_window->focusWidget();
  if (m_sheets.empty()) m_layer->cover();
  auto* const panel = new SheetPanel(content, *m_layer);
  content.widget().show();
  panel->place();
  panel->show();
  m_sheets.push_back({&content, std::move(didEnd), panel, focusBefore});
  if (SheetWindow::canBecomeKeyWindow()) content.focusMainField();
  if (changed) changed();
}

/// The sheet is gone before its `didEnd` hears of it, which may end it once more. The panel goes later: it may be at
/// work on the very key that ended the sheet.
void InsideSheets::endSheet(Window& window) {
  const auto found = find(window);
  if (found == m_sheets.end()) return;
  const Sheet ended = *found;
  m_sheets.erase(found);
  ended.content->widget().hide();
  ended.content->widget().setParent(nullptr);
  ended.panel->hide();
  ended.panel->deleteLater();
  if (m_sheets.empty() && m_layer) m_layer->uncover();
  restoreFocus(ended);
  if (changed) changed();
  if (ended.didEnd) ended.didEnd();
}

void InsideSheets::restoreFocus(const Sheet& ended) {
  if (!m_window) return;
  if (ended.focusBefore && ended.focusBefore->isEnabled()) {
    ended.focusBefore->setFocus(Qt::OtherFocusReason);
  } else if (isUp()) {
    current()->focusMainField();
  }
}

}  // namespace glossmill
