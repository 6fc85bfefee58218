#include "desktop/DesktopApplication.h"

#include <QCoreApplication>
#include <cstdlib>

namespace glossmill {

void DesktopApplication::terminate() {
  m_isTerminated = true;
  if (onTerminate) {
    onTerminate();
  } else {
    QCoreApplication::exit(0);
  }
}

void DesktopApplication::exitAtOnce(int code) {
  if (!onExitAtOnce) std::_Exit(code);
  onExitAtOnce(code);
}

}  // namespace glossmill
