#pragma once

#include <QMainWindow>
#include <functional>

namespace glossmill {

/// The main window. Its close box asks to quit; whether it closes is decided elsewhere.
class ProjectWindow : public QMainWindow {
 public:
  std::function<void()> closeRequested;

 protected:
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace glossmill
