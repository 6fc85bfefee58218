#include "host/HeadlessSystemLog.h"

namespace glossmill {

void HeadlessSystemLog::write(std::string_view message) {
  const std::lock_guard lock(m_mutex);
  if (onLine) onLine(message);
}

}  // namespace glossmill
