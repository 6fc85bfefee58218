#include "host/HeadlessSystemLog.h"

namespace glossmill {

void HeadlessSystemLog::write(const Message& message) {
  if (!onLine) return;
  const std::lock_guard lock(m_mutex);
  onLine(message);
}

}  // namespace glossmill
