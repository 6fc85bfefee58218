#include "desktop/DesktopFixture.h"

#include <QElapsedTimer>
#include <QFileDialog>
#include <QSettings>
#include <utility>

namespace glossmill {

void DesktopFixture::init() {
  m_demo = std::make_unique<DemoProject>();
  m_settings = std::make_unique<QTemporaryDir>();
  qputenv("XDG_STATE_HOME", QFile::encodeName(m_settings->path()));
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings->path());
  m_terminations = 0;
  m_exitCode.reset();
  makeProgram(QStringLiteral("en"));
  m_alerts.clear();
  m_alertAnswers.clear();
  m_panelAnswer = nullptr;
  m_answerTimer.setInterval(5);
  m_answerTimer.callOnTimeout(this, [this] { answerWhatIsUp(); });
  m_answerTimer.start();
}

void DesktopFixture::cleanup() {
  m_answerTimer.stop();
  m_answerTimer.disconnect();
  m_program.reset();
  QVERIFY2(allAnswersUsed(), "an answer was prepared to a question that nobody asked");
}

/// The interface files are translated by what was installed last.
void DesktopFixture::makeProgram(const QString& language) {
  const OwnTexts texts = ownTextsFor({language});
  m_translator = std::make_unique<OwnTranslator>(texts);
  QApplication::installTranslator(m_translator.get());
  m_program = std::make_unique<DesktopProgram>(texts);
  m_program->application().onTerminate = [this] { ++m_terminations; };
  m_program->application().onExitAtOnce = [this](int code) { m_exitCode = code; };
}

void DesktopFixture::startAnew(const QString& language) {
  m_program.reset();
  makeProgram(language);
}

void DesktopFixture::startWith(const QString& directory) {
  m_program->start(FileUrl(fromQt(directory)));
}

void DesktopFixture::openDemo() {
  startWith(demo().directory());
  QVERIFY(QTest::qWaitForWindowActive(&window()));
  waitForJob();
  QVERIFY(project().opened());
}

void DesktopFixture::waitForJob() {
  QTRY_VERIFY_WITH_TIMEOUT(program().threads().jobsRunning() == 0 && !project().longJobRunning(), 100000);
}

bool DesktopFixture::waitBriefly(const std::function<bool()>& condition) {
  QElapsedTimer timer;
  timer.start();
  while (!condition() && timer.elapsed() < 20000) QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
  return condition();
}

void DesktopFixture::waitForPhaseTwo() {
  const QLabel& title = inSheet<QLabel>("longTimeSheetTitle");
  QVERIFY(waitBriefly([&title] { return title.text() == QLatin1String("Parsing Localizable.strings ..."); }));
  QVERIFY(program().threads().jobsRunning() > 0);
}

void DesktopFixture::waitForProjectWindow() {
  window().activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window()));
}

QWidget& DesktopFixture::topLevel(const char* name) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String(name)) return *widget;
  }
  qFatal("there is no window %s", name);
}

QMainWindow& DesktopFixture::window() {
  return *qobject_cast<QMainWindow*>(&topLevel("ProjectWindowController"));
}

QWidget& DesktopFixture::logWindow() {
  return topLevel("LogWindowController");
}

QAction& DesktopFixture::command(CommandId id) {
  return program().actions().action(id);
}

bool DesktopFixture::isEnabled(CommandId id) {
  QCoreApplication::processEvents();
  return command(id).isEnabled();
}

void DesktopFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers, QWidget* in) {
  QCoreApplication::processEvents();
  QTest::keyClick((in ? in->window() : &window())->windowHandle(), key, modifiers);
}

void DesktopFixture::type(const QString& text, QWidget* in) {
  QWindow* handle = (in ? in->window() : &window())->windowHandle();
  for (const QChar character : text) QTest::keyClick(handle, character.toLatin1());
}

int DesktopFixture::rowOf(QTableView& table, const QString& first) {
  const auto row = static_cast<int>(firstColumn(table).indexOf(first));
  if (row < 0) qWarning() << "there is no row" << first;
  return row;
}

QString DesktopFixture::cell(QTableView& table, const QString& first, int column) {
  return table.model()->index(rowOf(table, first), column).data().toString();
}

QStringList DesktopFixture::firstColumn(QTableView& table) {
  QStringList texts;
  for (int row = 0; row < table.model()->rowCount(); ++row)
    texts.append(table.model()->index(row, 0).data().toString());
  return texts;
}

void DesktopFixture::select(QTableView& table, const QString& first) {
  const QModelIndex index = table.model()->index(rowOf(table, first), 0);
  table.scrollTo(index);
  QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, table.visualRect(index).center());
}

void DesktopFixture::click(QWidget& widget) {
  QTest::mouseClick(&widget, Qt::LeftButton);
}

void DesktopFixture::answerAlert(const QString& button) {
  m_alertAnswers.append(button);
}

void DesktopFixture::answerAlertWithKey(Qt::Key key) {
  m_alertKey = key;
}

void DesktopFixture::answerPanel(std::function<void(QFileDialog&)> answer) {
  m_panelAnswer = std::move(answer);
}

void DesktopFixture::answerWhatIsUp() {
  QWidget* modal = QApplication::activeModalWidget();
  if (qobject_cast<QMessageBox*>(modal) && m_alertKey != Qt::Key_unknown) {
    return QTest::keyClick(modal, std::exchange(m_alertKey, Qt::Key_unknown));
  }
  if (auto* alert = qobject_cast<QMessageBox*>(modal); alert && !m_alertAnswers.isEmpty()) {
    m_alerts.append(alert->text());
    const QString wanted = m_alertAnswers.takeFirst();
    for (QAbstractButton* button : alert->buttons()) {
      if (button->text().remove(QLatin1Char('&')) == wanted) return button->click();
    }
    qFatal("the alert has no button %s", qPrintable(wanted));
  }
  if (auto* panel = qobject_cast<QFileDialog*>(modal); panel && m_panelAnswer) answer(*panel);
}

/// A failing check leaves the answer before it has closed the panel, which would then wait for ever.
void DesktopFixture::answer(QFileDialog& panel) {
  const QPointer<QFileDialog> up(&panel);
  std::exchange(m_panelAnswer, nullptr)(panel);
  if (!up || !up->isVisible()) return;
  QTest::qVerify(QTest::currentTestFailed(), "the file panel is closed", "its answer left it up", __FILE__, __LINE__);
  up->reject();
}

}  // namespace glossmill
