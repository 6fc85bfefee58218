#include "desktop/host/EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <csignal>
#include <utility>

namespace glossmill {

namespace {

enum PipeEnd { ReadingEnd, WritingEnd };

int pipeOfSignals[2] = {-1, -1};

/// The only thing that is safe here: the event loop does the rest.
void passOn(int signal) {
  const auto number = static_cast<unsigned char>(signal);
  if (write(pipeOfSignals[WritingEnd], &number, 1) != 1) _exit(128 + signal);
}

/// A signal that whoever started the program ignores, as nohup does, stays ignored.
void watch(int signal) {
  struct sigaction former {};
  if (sigaction(signal, nullptr, &former) == 0 && former.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = passOn;
  action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
  sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void(int signal)> arrived) : m_arrived(std::move(arrived)) {
  if (pipe2(pipeOfSignals, O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(pipeOfSignals[ReadingEnd], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { receive(); });
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) watch(signal);
}

void EndSignals::receive() {
  unsigned char number = 0;
  if (read(pipeOfSignals[ReadingEnd], &number, 1) == 1) m_arrived(number);
}

}  // namespace glossmill
