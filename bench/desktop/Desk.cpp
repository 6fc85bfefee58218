#include "desktop/Desk.h"

#include <QTest>
#include <QTimer>

#include "desktop/PaintWatch.h"
#include "timing/Findings.h"

namespace glossmill::bench {

namespace {

constexpr double kMostSeconds = 120;

}  // namespace

Desk::Desk(DesktopProgram& program, const std::string& directory) : m_program(program) {
  program.start(FileUrl(directory));
  runUntil([this] { return project().opened() && !project().stringList().empty(); }, "open project");
  finishJob();
  if (!QTest::qWaitForWindowActive(&window("ProjectWindowController"))) giveUp("the window does not become active");
  settle();
}

QWidget& Desk::window(const char* name) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String(name)) return *widget;
  }
  giveUp(std::string("there is no window ") + name);
}

void Desk::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(window("ProjectWindowController").windowHandle(), key, modifiers);
}

void Desk::type(QWidget& into, QChar character) {
  QTest::sendKeyEvent(QTest::Click, &into, Qt::Key_unknown, QString(character), Qt::NoModifier);
}

double Desk::secondsUntilPainted(const std::function<void()>& action, std::initializer_list<QWidget*> widgets) {
  settle();
  const PaintWatch watch(widgets);
  const Stopwatch time;
  action();
  runUntil([&watch] { return watch.isComplete(); }, "picture");
  const double seconds = time.seconds();
  settle();
  return seconds;
}

void Desk::finishJob() {
  runUntil([this] { return !project().longJobRunning() && !m_program.sheets().isUp(); }, "end of the job");
  runUntil([this] { return m_program.threads().jobsRunning() == 0; }, "end of the job's thread");
}

/// Sleeps between the events as the program does; the timer ends the sleep when something came about without an event.
void Desk::runUntil(const std::function<bool()>& isDone, const char* what) {
  const Stopwatch time;
  QTimer waker;
  waker.start(1);
  while (!isDone()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (time.seconds() > kMostSeconds) giveUp(std::string("waited in vain: ") + what);
  }
}

/// An event that is done may have posted another.
void Desk::settle() {
  for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
}

}  // namespace glossmill::bench
