#include "model/PercentDone.h"

namespace glossmill {

int percentDone(std::size_t all, std::size_t missing) {
  if (missing == 0) return 100;
  return static_cast<int>((all - missing) * 100 / all);
}

}  // namespace glossmill
