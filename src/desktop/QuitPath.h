#pragma once

#include <QGuiApplication>
#include <QObject>

#include "app/AppDelegate.h"
#include "desktop/DesktopApplication.h"
#include "desktop/host/WidgetPanels.h"
#include "host/HostThreads.h"

namespace glossmill {

/// The one way out of the program, whoever asks for it: the menu, the close box, the desktop at the end of a session.
/// A running job is cancelled and waited for, then the delegate asks what is to be asked. Nobody is asked at the end of
/// a session, or by a signal: what was not saved stays in the journal. Main thread.
class QuitPath : public QObject {
 public:
  /// All of them outlive the path.
  QuitPath(AppDelegate& delegate, HostThreads& threads, WidgetPanels& panels, DesktopApplication& application);

  /// Harmless while a quit is already being asked about.
  void request();
  /// Ends the process once all edits are on the disk, whatever is up or running.
  void endAtOnce(int code);
  /// The session may end from now on; that it goes on is seen by the next key or click.
  void prepareForEndOfSession();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void stopJob();

  AppDelegate& m_delegate;
  HostThreads& m_threads;
  WidgetPanels& m_panels;
  DesktopApplication& m_application;
  bool m_asking = false;
  bool m_sessionEnds = false;
};

}  // namespace glossmill
