// glossmill-bench-bare-start: shows an empty main window and ends as soon as it was painted. No program with windows
// starts faster, so a start is given as a multiple of this one.

#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <cstdlib>

namespace {

class BareWindow : public QMainWindow {
 protected:
  void paintEvent(QPaintEvent* event) override {
    QMainWindow::paintEvent(event);
    QTimer::singleShot(0, [] {
      QGuiApplication::sync();
      std::_Exit(0);
    });
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  BareWindow window;
  window.show();
  return QApplication::exec();
}
