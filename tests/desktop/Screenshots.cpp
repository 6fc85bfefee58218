// Usage: desktop_screenshots LOOK PROJECT OUTPUT [LANGUAGE]
//
// Opens the project and writes pictures of the program's windows into OUTPUT. LOOK is light, dark or right-to-left, or
// rules-light or rules-dark: how a project is read by the classic rules, then by xcode's, and edited. The project is
// not saved, but the choice of rules may be written into its own settings.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
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

  void takeRules() {
    take("rules-offer");
    m_program.actions().action(CommandId::UseXcodeRules).trigger();
    waitForJob();
    selectLanguage("de");
    take("rules-tables");
    showMenu("rules-menu");
    editSomething();
    take("rules-edited");
    takeClosing();
    m_program.actions().action(CommandId::AddLanguage).trigger();
    take("rules-add-language");
    m_program.sheets().current()->cancelButton().click();
    m_program.actions().action(CommandId::RemoveUnused).trigger();
    take("rules-unused", "UnusedEntriesWindow");
  }

 private:
  void waitForJob() {
    while (m_program.delegate().projectWindowController()->longJobRunning()) runEvents(10);
    runEvents(100);
  }

  /// The submenu beside its menu.
  void showMenu(const char* name) {
    QAction& rules = m_program.actions().action(CommandId::UseXcodeRules);
    for (QObject* owner : rules.associatedObjects()) {
      auto* menu = qobject_cast<QMenu*>(owner);
      if (!menu) continue;
      menu->popup(window("ProjectWindowController").mapToGlobal(QPoint(200, 120)));
      runEvents(100);
      save(*menu, name);
      menu->close();
    }
  }

  /// A translation of the selected language that replaces another one.
  void editSomething() {
    ProjectWindowController& project = *m_program.delegate().projectWindowController();
    auto& strings = project.stringController();
    for (std::size_t row = 0; row < strings.arrangedCount(); ++row) {
      if (!strings.arrangedObject(row)->languagesDict().contains(project.selectedLanguage()->code())) continue;
      strings.setSelectionIndex(row);
      break;
    }
    auto& editor = *window("ProjectWindowController").findChild<QPlainTextEdit*>(QStringLiteral("translationTextView"));
    editor.setFocus();
    editor.setPlainText(QStringLiteral("\u201EErste\u201C Zeile\n\"zweite\" Zeile"));
  }

  void takeClosing() {
    QTimer::singleShot(300, [this] {
      auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!question) std::exit(1);
      save(*question, "rules-closing");
      QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
      QApplication::sendEvent(question, &escape);
    });
    m_program.delegate().projectWindowController()->closeProject();
  }

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

  void takeAsItIs(const char* name, const char* windowName) { save(window(windowName), name); }

  void save(QWidget& widget, const char* name) {
    const QString file = QStringLiteral("%1/%2.png").arg(m_output, QLatin1String(name));
    if (!widget.grab().save(file)) std::exit(1);
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
  if (argc != 4 && argc != 5) return 2;
  const std::string_view look = argv[1];
  const QString language = argc == 5 ? QString::fromLocal8Bit(argv[4]) : QStringLiteral("en");
  QApplication::setStyle(new glossmill::StillStyle);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
  if (look.ends_with("dark")) QApplication::setPalette(glossmill::darkPalette());
  if (look == "right-to-left") QApplication::setLayoutDirection(Qt::RightToLeft);
  glossmill::DesktopProgram program(glossmill::setUpApplication(application, {language}, "0.1.0"));
  glossmill::Photographer photographer(program, QString::fromLocal8Bit(argv[3]));
  photographer.open(QDir(QString::fromLocal8Bit(argv[2])).absolutePath());
  if (look == "light") photographer.takeLight();
  if (look == "dark") photographer.takeDark();
  if (look == "right-to-left") photographer.takeRightToLeft();
  if (look.starts_with("rules-")) photographer.takeRules();
  return 0;
}
