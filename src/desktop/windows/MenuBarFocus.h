#pragma once

#include <QMenuBar>
#include <QObject>
#include <QPointer>

namespace glossmill {

/// Gives the keyboard back to where it was when the menu bar is left with Escape, which the bar by itself sometimes
/// keeps. Belongs to the menu bar.
class MenuBarFocus : public QObject {
 public:
  explicit MenuBarFocus(QMenuBar& bar);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void giveBack();

  QMenuBar& m_bar;
  QPointer<QWidget> m_before;
};

}  // namespace glossmill
