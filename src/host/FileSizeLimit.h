#pragma once

#include <csignal>

namespace glossmill {

/// A file that grows beyond the limit of the process becomes an error like a full disk; by itself it would end the
/// process. Call it at the beginning of main().
inline void makeFileSizeLimitAnError() {
#if defined(SIGXFSZ)
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace glossmill
