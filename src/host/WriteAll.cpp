#include "host/WriteAll.h"

#include <unistd.h>

#include <cerrno>

#include "host/SystemError.h"

namespace glossmill {

Outcome writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written == 0) return systemError(EIO);
    if (written > 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return systemError(errno);
    }
  }
  return Done{};
}

}  // namespace glossmill
