#include <QClipboard>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"
#include "desktop/windows/LogTextEdit.h"

namespace glossmill {

class LogTest : public DesktopFixture {
  Q_OBJECT

  LogTextEdit& view() { return *static_cast<LogTextEdit*>(logWindow().findChild<QPlainTextEdit*>("textView")); }
  QLineEdit& searchField() { return *logWindow().findChild<QLineEdit*>("searchField"); }
  QPushButton& button(const char* name) { return *logWindow().findChild<QPushButton*>(name); }
  static bool activatesEveryWindow() {
    return QGuiApplication::platformName() == QLatin1String("offscreen") ||
           qEnvironmentVariable("GLOSSMILL_WINDOW_MANAGER").startsWith(QLatin1String("matchbox"));
  }
  void log(const char* text) { program().delegate().logText(text); }
  QString shown() {
    view().flush();
    return view().toPlainText();
  }

 private Q_SLOTS:
  void isNotOpenedByClearing() {
    openDemo();
    QVERIFY(!program().delegate().logWindowController() || program().delegate().logWindowController()->messageCount());
    program().delegate().clearLog();
    QVERIFY(!project().changed());
  }

  void showsEachMessageOnALineOfItsOwn() {
    openDemo();
    program().delegate().clearLog();
    log("one");
    log("two");
    QCOMPARE(shown(), QStringLiteral("one\ntwo\n"));
  }

  void isVisibleWithoutTakingTheKeyboard() {
    if (activatesEveryWindow()) QSKIP("here every window that is shown is activated");
    openDemo();
    logWindow().close();
    editor().setFocus();
    log("one");
    QVERIFY(logWindow().isVisible());
    QTest::qWait(100);
    QVERIFY(window().isActiveWindow());
    QVERIFY(editor().hasFocus());
  }

  void showsWhatABackgroundThreadLogsBeforeItGoesOn() {
    openDemo();
    std::size_t counted = 0;
    program().delegate().clearLog();
    program().threads().performInBackground([this, &counted] {
      program().delegate().logText("from afar");
      counted = program().delegate().logWindowController()->messageCount();
    });
    waitForJob();
    QCOMPARE(counted, std::size_t{1});
    QCOMPARE(shown(), QStringLiteral("from afar\n"));
  }

  void isDrawnWithoutBeingAskedFor() {
    openDemo();
    log("line at the end");
    QTRY_VERIFY(view().toPlainText().endsWith(QStringLiteral("line at the end\n")));
  }

  void takesManyMessages() {
    openDemo();
    program().delegate().clearLog();
    program().threads().performInBackground([this] {
      for (int number = 0; number < 20000; ++number) program().delegate().logText("a message of ordinary length");
    });
    waitForJob();
    view().flush();
    QCOMPARE(view().document()->blockCount(), 20001);
  }

  void isEmptiedByItsButtonAndByClosing() {
    openDemo();
    log("one");
    click(button("clearButton"));
    QCOMPARE(shown(), QString());
    log("two");
    QCOMPARE(shown(), QStringLiteral("two\n"));
    command(CommandId::Close).trigger();
    QCOMPARE(shown(), QString());
  }

  void showsANewTextThatIsLongerThanTheOldOne() {
    openDemo();
    program().delegate().clearLog();
    log("short");
    QCOMPARE(shown(), QStringLiteral("short\n"));
    program().delegate().clearLog();
    log("something longer");
    QCOMPARE(shown(), QStringLiteral("something longer\n"));
  }

  void isReadOnly() {
    openDemo();
    log("one");
    view().setFocus();
    const QString before = shown();
    type(QStringLiteral("x"), &logWindow());
    QCOMPARE(shown(), before);
  }

  void findsForwardsBackwardsAndRound() {
    openDemo();
    program().delegate().clearLog();
    for (const char* text : {"alpha one", "beta", "alpha two"}) log(text);
    program().delegate().openLogWindow();
    logWindow().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&logWindow()));
    press(Qt::Key_F, Qt::ControlModifier, &logWindow());
    QVERIFY(searchField().hasFocus());
    type(QStringLiteral("alpha"), &logWindow());
    const auto row = [this] { return view().textCursor().blockNumber(); };
    press(Qt::Key_Return, Qt::NoModifier, &logWindow());
    QCOMPARE(row(), 0);
    press(Qt::Key_F3, Qt::NoModifier, &logWindow());
    QCOMPARE(row(), 2);
    press(Qt::Key_F3, Qt::NoModifier, &logWindow());
    QCOMPARE(row(), 0);
    press(Qt::Key_F3, Qt::ShiftModifier, &logWindow());
    QCOMPARE(row(), 2);
    QCOMPARE(view().textCursor().selectedText(), QStringLiteral("alpha"));
  }

  void copiesAll() {
    openDemo();
    program().delegate().clearLog();
    log("one");
    log("two");
    click(button("copyButton"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one\ntwo\n"));
  }

  void comesBackFromBeingMinimisedWithAMessage() {
    openDemo();
    log("one");
    logWindow().setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    log("two");
    QTRY_COMPARE(logWindow().windowState() & (Qt::WindowMaximized | Qt::WindowMinimized), Qt::WindowMaximized);
    QVERIFY(logWindow().isVisible());
  }

  void comesBackFromBeingMinimisedWithItsCommand() {
    openDemo();
    log("one");
    logWindow().showMinimized();
    command(CommandId::LogWindow).trigger();
    QTRY_VERIFY(!logWindow().isMinimized());
    QVERIFY(logWindow().isVisible());
    QVERIFY(QTest::qWaitForWindowActive(&logWindow()));
  }

  void closesWithTheKeyboardAndComesBackWithTheWholeText() {
    openDemo();
    program().delegate().clearLog();
    log("one");
    logWindow().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&logWindow()));
    press(Qt::Key_W, Qt::ControlModifier, &logWindow());
    QVERIFY(!logWindow().isVisible());
    QVERIFY(project().opened());
    log("two");
    QVERIFY(logWindow().isVisible());
    QCOMPARE(shown(), QStringLiteral("one\ntwo\n"));
  }
};

static const TestRegistration<LogTest> kLogRegistration("Log");

}  // namespace glossmill

#include "LogTest.moc"
