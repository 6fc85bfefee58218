#include "host/AllocatorSettings.h"

#include <cstdlib>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace glossmill {

void setAllocatorForScans() {
#if defined(__GLIBC__)
  constexpr int kStep = 16 * 1024 * 1024;
  mallopt(M_ARENA_MAX, 1);
  mallopt(M_TOP_PAD, kStep);
  mallopt(M_MMAP_THRESHOLD, 4 * kStep);
#endif
}

}  // namespace glossmill
