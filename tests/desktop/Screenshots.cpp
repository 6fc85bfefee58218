// Usage: desktop_screenshots LOOK PROJECT OUTPUT
//
// Opens the project and writes pictures of the program's windows into OUTPUT. LOOK is light, dark or right-to-left.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QTableView>
#include <cstdio>

#include "desktop/ApplicationSetup.h"
#include "desktop/DesktopProgram.h"
#include "desktop/StillStyle.h"
#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

void runEvents(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  while (timer.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

QPalette darkPalette() {
  QPalette dark(QColor(0x35, 0x37, 0x3b), QColor(0x2b, 0x2d, 0x30));
  dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
  dark.setColor(QPalette::AlternateBase, QColor(0x25, 0x27, 0x2b));
  dark.setColor(QPalette::Highlight, QColor(0x2f, 0x7f, 0x9b));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  dark.setColor(QPalette::PlaceholderText, QColor(0x8d, 0x91, 0x98));
  return dark;
}

class Photographer {
 public:
  Photographer(DesktopProgram& program, QString output) : m_program(program), m_output(std::move(output)) {}

  void open(const QString& project) {
    m_program.start(FileUrl(fromQt(project)));
    while (m_program.delegate().projectWindowController()->longJobRunning()) runEvents(10);
    runEvents(100);
  }

  void takeLight() {
    selectLanguage("de");
    selectString("At low water");
    take("project-light");
    take("log", "LogWindowController");
    takeSheets();
  }

  void takeDark() {
    selectLanguage("ja");
    selectString("Harbour");
    take("project-dark");
    m_program.delegate().projectWindowController()->addLanguage();
    take("add-language-dark");
    m_program.sheets().current()->cancelButton().click();
  }

  void takeRightToLeft() {
    selectLanguage("ar");
    selectString("Name of the boat");
    take("project-right-to-left");
  }

 private:
  QWidget& window(const char* name) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QLatin1String(name)) return *widget;
    }
    std::fprintf(stderr, "there is no window %s\n", name);
    std::exit(1);
  }

  void take(const char* name, const char* windowName = "ProjectWindowController") {
    runEvents(250);
    takeAsItIs(name, windowName);
  }

  void takeAsItIs(const char* name, const char* windowName) {
    const QString file = QStringLiteral("%1/%2.png").arg(m_output, QLatin1String(name));
    if (!window(windowName).grab().save(file)) std::exit(1);
    std::printf("%s\n", qPrintable(file));
  }

  void selectLanguage(std::string_view code) {
    auto& languages = m_program.delegate().projectWindowController()->languageController();
    for (std::size_t row = 0; row < languages.arrangedCount(); ++row) {
      if (languages.arrangedObject(row)->iso639() == code) languages.setSelectionIndex(row);
    }
  }

  void selectString(std::string_view start) {
    auto& strings = m_program.delegate().projectWindowController()->stringController();
    for (std::size_t row = 0; row < strings.arrangedCount(); ++row) {
      if (strings.arrangedObject(row)->name().starts_with(start)) strings.setSelectionIndex(row);
    }
  }

  QLineEdit& searchIn(QWidget& parent) { return *parent.findChild<QLineEdit*>(QStringLiteral("searchField")); }

  void takeSheets() {
    ProjectWindowController& project = *m_program.delegate().projectWindowController();
    project.addLanguage();
    searchIn(m_program.sheets().current()->widget()).setText(QStringLiteral("an"));
    take("add-language");
    m_program.sheets().current()->cancelButton().click();
    project.exportStrings();
    take("export");
    m_program.sheets().current()->cancelButton().click();
    project.parseProject();
    takeAsItIs("sheet", "ProjectWindowController");
    project.longTimeCanceled();
    runEvents(250);
  }

  DesktopProgram& m_program;
  QString m_output;
};

}  // namespace

}  // namespace glossmill

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 4) return 2;
  const std::string_view look = argv[1];
  QApplication::setStyle(new glossmill::StillStyle);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
  if (look == "dark") QApplication::setPalette(glossmill::darkPalette());
  if (look == "right-to-left") QApplication::setLayoutDirection(Qt::RightToLeft);
  glossmill::DesktopProgram program(glossmill::setUpApplication(application, {QStringLiteral("en")}, "0.1.0"));
  glossmill::Photographer photographer(program, QString::fromLocal8Bit(argv[3]));
  photographer.open(QDir(QString::fromLocal8Bit(argv[2])).absolutePath());
  if (look == "light") photographer.takeLight();
  if (look == "dark") photographer.takeDark();
  if (look == "right-to-left") photographer.takeRightToLeft();
  return 0;
}
