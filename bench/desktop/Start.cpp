// glossmill-bench-start DIR: starts the application with the project in DIR as main() does and ends as soon as a person
// could use its window: the scan is done, its sheet is gone, and both tables were painted with their rows.

#include <QApplication>
#include <QEvent>
#include <QLocale>
#include <QTableView>
#include <QTimer>
#include <cstdlib>
#include <set>

#include "desktop/ApplicationSetup.h"
#include "desktop/DesktopProgram.h"
#include "desktop/LaunchArguments.h"
#include "host/AllocatorSettings.h"

namespace {

/// Sees every paint event of the program.
class UsableWindow : public QObject {
 public:
  explicit UsableWindow(glossmill::DesktopProgram& program) : m_program(program) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || !watched->parent()) return false;
    const auto* table = qobject_cast<QTableView*>(watched->parent());
    if (table && table->isEnabled() && table->model()->rowCount() > 0 && isOpen()) m_painted.insert(table);
    if (m_painted.size() == 2) QTimer::singleShot(0, &endAtOnce);
    return false;
  }

 private:
  static void endAtOnce() {
    QGuiApplication::sync();
    std::_Exit(0);
  }

  bool isOpen() const {
    const auto* project = m_program.delegate().projectWindowController();
    return project && project->opened() && !project->longJobRunning() && !m_program.sheets().isUp();
  }

  glossmill::DesktopProgram& m_program;
  std::set<const QTableView*> m_painted;
};

}  // namespace

int main(int argc, char** argv) {
  glossmill::setAllocatorForScans();
  const glossmill::LaunchArguments launch = glossmill::readLaunchArguments(argc, argv, "");
  if (!launch.directory) return 2;
  QApplication application(argc, argv);
  glossmill::DesktopProgram program(glossmill::setUpApplication(application, QLocale::system().uiLanguages(), "0.0.0"));
  const UsableWindow usable(program);
  QTimer::singleShot(0, [&] { program.start(launch.directory); });
  return QApplication::exec();
}
