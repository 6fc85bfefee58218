#include "desktop/QuitPath.h"

#include <QEvent>
#include <QScopedValueRollback>

namespace glossmill {

QuitPath::QuitPath(AppDelegate& delegate, HostThreads& threads, WidgetPanels& panels, DesktopApplication& application)
    : m_delegate(delegate), m_threads(threads), m_panels(panels), m_application(application) {
  QCoreApplication::instance()->installEventFilter(this);
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { prepareForEndOfSession(); }, Qt::DirectConnection);
}

/// A question that is up is to be answered first. A file panel is cancelled, and the quit follows when it is gone.
void QuitPath::request() {
  if (m_asking || m_panels.isAlertUp()) return;
  if (m_panels.isFilePanelUp()) {
    m_panels.cancelFilePanel();
    QMetaObject::invokeMethod(
        this, [this] { request(); }, Qt::QueuedConnection);
    return;
  }
  const QScopedValueRollback asking(m_asking, true);
  stopJob();
  m_delegate.quit();
}

void QuitPath::stopJob() {
  if (m_threads.jobsRunning() == 0) return;
  if (ProjectWindowController* project = m_delegate.projectWindowController()) project->longTimeCanceled();
  m_threads.runUntilIdle();
}

/// The default reaction closes the windows one by one, and a refusal by the second would leave the first one closed.
bool QuitPath::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) m_sessionEnds = false;
  if (event->type() != QEvent::Quit || watched != QCoreApplication::instance()) {
    return QObject::eventFilter(watched, event);
  }
  event->ignore();
  m_sessionEnds ? endAtOnce(0) : request();
  return true;
}

void QuitPath::endAtOnce(int code) {
  if (ProjectWindowController* project = m_delegate.projectWindowController()) project->flushEdits();
  m_application.exitAtOnce(code);
}

void QuitPath::prepareForEndOfSession() {
  m_sessionEnds = true;
  if (ProjectWindowController* project = m_delegate.projectWindowController()) project->flushEdits();
}

}  // namespace glossmill
