// Usage: desktop_guide_pictures PROJECT OUTPUT
//
// Does with the project what docs/guide.md tells, and writes the guide's pictures into OUTPUT. The project is saved.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHash>
#include <QImage>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>
#include <cstdio>

#include "desktop/ApplicationSetup.h"
#include "desktop/DesktopProgram.h"
#include "desktop/StillStyle.h"
#include "desktop/host/QtText.h"

namespace glossmill {

namespace {

constexpr QSize kWindowSize(1080, 700);

void runEvents(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  while (timer.elapsed() < milliseconds) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

/// With a palette of its most frequent colours, which makes the file a third as large.
QImage withPalette(const QImage& picture) {
  constexpr qsizetype kColors = 256;
  QHash<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  QList<QRgb> colors = counts.keys();
  std::sort(colors.begin(), colors.end(),
            [&counts](QRgb a, QRgb b) { return counts[a] != counts[b] ? counts[a] > counts[b] : a < b; });
  if (colors.size() > kColors) colors.resize(kColors);
  return picture.convertToFormat(QImage::Format_Indexed8, colors, Qt::ThresholdDither | Qt::AvoidDither);
}

/// Works on a project as its reader is told to.
class Guide {
 public:
  Guide(DesktopProgram& program, QString output) : m_program(program), m_output(std::move(output)) {}

  void open(const QString& project) {
    m_program.start(FileUrl(fromQt(project)));
    while (this->project().longJobRunning()) runEvents(10);
    window().resize(kWindowSize);
  }

  void takeAll() {
    take("1-opened");
    selectLanguage("de");
    filterBox().setCurrentIndex(1);
    Q_EMIT filterBox().activated(1);
    selectString("Something went wrong");
    take("2-missing");
    type(QStringLiteral("Etwas ist schiefgegangen: %ld"));
    take("3-typed");
    filterBox().setCurrentIndex(0);
    Q_EMIT filterBox().activated(0);
    project().addLanguage();
    search(QStringLiteral("swe"));
    take("4-add-language");
    m_program.sheets().current()->cancelButton().click();
    project().exportStrings();
    take("5-export");
    m_program.sheets().current()->cancelButton().click();
  }

 private:
  ProjectWindowController& project() { return *m_program.delegate().projectWindowController(); }

  QWidget& window() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->objectName() == QLatin1String("ProjectWindowController")) return *widget;
    }
    std::fprintf(stderr, "there is no project window\n");
    std::exit(1);
  }
  QComboBox& filterBox() { return *window().findChild<QComboBox*>(QStringLiteral("stringFilterPopUp")); }

  void type(const QString& text) {
    auto& editor = *window().findChild<QPlainTextEdit*>(QStringLiteral("translationTextView"));
    editor.setFocus();
    editor.setPlainText(text);
  }

  void search(const QString& text) {
    m_program.sheets().current()->widget().findChild<QLineEdit*>(QStringLiteral("searchField"))->setText(text);
  }

  void selectLanguage(std::string_view code) {
    auto& languages = project().languageController();
    for (std::size_t row = 0; row < languages.arrangedCount(); ++row) {
      if (languages.arrangedObject(row)->iso639() == code) languages.setSelectionIndex(row);
    }
  }

  void selectString(std::string_view start) {
    auto& strings = project().stringController();
    for (std::size_t row = 0; row < strings.arrangedCount(); ++row) {
      if (strings.arrangedObject(row)->name().starts_with(start)) strings.setSelectionIndex(row);
    }
  }

  void take(const char* name) {
    runEvents(300);
    const QString file = QStringLiteral("%1/%2.png").arg(m_output, QLatin1String(name));
    const QImage picture = withPalette(window().grab().toImage());
    if (!picture.save(file, "PNG", 0)) std::exit(1);
    std::printf("%s\n", qPrintable(file));
  }

  DesktopProgram& m_program;
  QString m_output;
};

}  // namespace

}  // namespace glossmill

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  QApplication::setStyle(new glossmill::StillStyle);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
  glossmill::DesktopProgram program(glossmill::setUpApplication(application, {QStringLiteral("en")}, "0.1.0"));
  glossmill::Guide guide(program, QString::fromLocal8Bit(argv[2]));
  guide.open(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
  guide.takeAll();
  return 0;
}
