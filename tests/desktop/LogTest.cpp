#include <QAccessible>
#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"
#include "desktop/windows/LogTextEdit.h"

namespace glossmill {

/// Counts how often a window was brought to the front.
class RaiseCounter : public QObject {
 public:
  explicit RaiseCounter(QWidget& window) { window.installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ZOrderChange) ++raises;
    return QObject::eventFilter(watched, event);
  }

  int raises = 0;
};

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
  QString shown() { return view().toPlainText(); }

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

  void comesToTheFrontWithAMessage() {
    openDemo();
    program().delegate().openLogWindow();
    const RaiseCounter counter(logWindow());
    QVERIFY(waitBriefly([&] {
      log("one");
      return counter.raises > 0;
    }));
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

  void isReadAtOnceByWhoeverReadsIt() {
    openDemo();
    program().delegate().clearLog();
    log("one");
    log("two");
    QCOMPARE(view().QPlainTextEdit::toPlainText(), QStringLiteral("one\ntwo\n"));
    QCOMPARE(view().document()->lastBlock().previous().text(), QStringLiteral("two"));
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view());
    QVERIFY(accessible && accessible->textInterface());
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("one\ntwo\n"));
    log("three");
    QCOMPARE(accessible->textInterface()->characterCount(), 14);
    QCOMPARE(accessible->textInterface()->text(8, 13), QStringLiteral("three"));
  }

  void isReadByABackgroundThreadThatHasLogged() {
    openDemo();
    program().delegate().clearLog();
    QString read;
    program().threads().performInBackground([this, &read] {
      program().delegate().logText("from afar");
      program().threads().performOnMainThreadAndWait([&] { read = shown(); });
    });
    waitForJob();
    QCOMPARE(read, QStringLiteral("from afar\n"));
  }

  void isPaintedByWhoeverPaintsIt() {
    openDemo();
    program().delegate().clearLog();
    QCoreApplication::processEvents();
    const QImage empty = view().viewport()->grab().toImage();
    log("a line that can be seen");
    const QImage atOnce = view().viewport()->grab().toImage();
    QVERIFY(atOnce != empty);
    QCoreApplication::processEvents();
    QCOMPARE(view().viewport()->grab().toImage(), atOnce);
  }

  void isDrawnWithoutBeingAskedFor() {
    openDemo();
    program().delegate().clearLog();
    QTRY_COMPARE(view().verticalScrollBar()->maximum(), 0);
    for (int number = 0; number < 200; ++number) log("a line");
    QTRY_VERIFY(view().verticalScrollBar()->maximum() > 100);
    QCOMPARE(view().verticalScrollBar()->value(), view().verticalScrollBar()->maximum());
  }

  void staysWhereAPersonHasScrolledTo() {
    openDemo();
    for (int number = 0; number < 200; ++number) log("a line");
    QTRY_VERIFY(view().verticalScrollBar()->maximum() > 100);
    view().verticalScrollBar()->setValue(7);
    const int before = view().verticalScrollBar()->maximum();
    log("another line");
    QTRY_VERIFY(view().verticalScrollBar()->maximum() > before);
    QCOMPARE(view().verticalScrollBar()->value(), 7);
  }

  void takesManyMessages() {
    openDemo();
    program().delegate().clearLog();
    program().threads().performInBackground([this] {
      for (int number = 0; number < 20000; ++number) program().delegate().logText("a message of ordinary length");
    });
    waitForJob();
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
