#pragma once

#include <QGuiApplication>
#include <QObject>

#include "app/AppDelegate.h"
#include "desktop/host/WidgetPanels.h"
#include "host/HostThreads.h"

class QSessionManager;

namespace glossmill {

/// The one way out of the program, whoever asks for it: the menu, the close box, the desktop at the end of a session.
/// A running job is cancelled and waited for, then the delegate asks what is to be asked. Main thread.
class QuitPath : public QObject {
 public:
  /// All of them outlive the path.
  QuitPath(AppDelegate& delegate, HostThreads& threads, WidgetPanels& panels);

  /// Harmless while a quit is already being asked about.
  void request();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void stopJob();
  void endSession(QSessionManager& session);

  AppDelegate& m_delegate;
  HostThreads& m_threads;
  WidgetPanels& m_panels;
  bool m_asking = false;
};

}  // namespace glossmill
