#pragma once

#include <QObject>
#include <functional>

namespace glossmill {

/// SIGTERM, SIGHUP and SIGINT, told on the main thread's event loop. The second one of a kind ends the program as the
/// system does. One in a program.
class EndSignals : public QObject {
 public:
  explicit EndSignals(std::function<void(int signal)> arrived);

 private:
  void receive();

  std::function<void(int)> m_arrived;
};

}  // namespace glossmill
