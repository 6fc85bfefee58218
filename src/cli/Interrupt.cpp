#include "cli/Interrupt.h"

#include <atomic>
#include <csignal>

namespace glossmill {

namespace {

std::atomic<bool> interruptSeen = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may not wait for a lock");

void rememberInterrupt(int) {
  interruptSeen.store(true);
}

}  // namespace

void catchInterrupt() {
  struct sigaction former {};
  sigaction(SIGINT, nullptr, &former);
  if (former.sa_handler == SIG_IGN) return;
  struct sigaction once {};
  once.sa_handler = rememberInterrupt;
  once.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  sigaction(SIGINT, &once, nullptr);
}

bool interrupted() {
  return interruptSeen.load();
}

}  // namespace glossmill
