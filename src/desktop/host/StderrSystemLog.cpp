#include "desktop/host/StderrSystemLog.h"

#include <cstdio>
#include <string>

namespace glossmill {

/// One call, so that lines of several threads do not mix.
void StderrSystemLog::write(const Message& message) {
  std::string line = "glossmill: ";
  message.appendTo(line);
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace glossmill
