#pragma once

#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <vector>

#include "desktop/sheets/SheetLayer.h"
#include "desktop/sheets/SheetPanel.h"
#include "platform/Sheets.h"

namespace glossmill {

/// Sheets drawn inside the project window, below its menu bar: the rest of the window is disabled, menus and shortcuts
/// stay alive. One that begins over another covers it.
class InsideSheets : public Sheets {
 public:
  /// Every sheet is a SheetContent.
  void beginSheet(Window& sheet, std::function<void()> didEnd) override;
  void endSheet(Window& sheet) override;

  /// The window that sheets cover; before the first sheet.
  void setWindow(QMainWindow& window);
  bool isUp() const { return !m_sheets.empty(); }
  /// The content of the topmost sheet; null when none is up.
  SheetContent* current() const { return isUp() ? m_sheets.back().content : nullptr; }

  /// Called after a sheet has begun or ended, once for each.
  std::function<void()> changed;

 private:
  struct Sheet {
    SheetContent* content = nullptr;
    std::function<void()> didEnd;
    QPointer<SheetPanel> panel;  ///< a child of the window
    QPointer<QWidget> focusBefore;
  };

  std::vector<Sheet>::iterator find(const Window& sheet);
  void restoreFocus(const Sheet& ended);

  QPointer<QMainWindow> m_window;
  QPointer<SheetLayer> m_layer;
  std::vector<Sheet> m_sheets;
};

}  // namespace glossmill
