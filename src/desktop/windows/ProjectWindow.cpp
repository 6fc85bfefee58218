#include "desktop/windows/ProjectWindow.h"

#include <QCloseEvent>

namespace glossmill {

void ProjectWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (closeRequested) closeRequested();
}

}  // namespace glossmill
