#include "desktop/DesktopApplication.h"

#include <QCoreApplication>

namespace glossmill {

void DesktopApplication::terminate() {
  m_isTerminated = true;
  if (onTerminate) {
    onTerminate();
  } else {
    QCoreApplication::exit(0);
  }
}

}  // namespace glossmill
