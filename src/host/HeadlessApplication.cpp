#include "host/HeadlessApplication.h"

namespace glossmill {

void HeadlessApplication::terminate() {
  isTerminated = true;
  if (onTerminate) onTerminate();
}

}  // namespace glossmill
