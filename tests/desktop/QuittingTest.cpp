#include <QCloseEvent>
#include <QFileDialog>
#include <csignal>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"
#include "desktop/host/EndSignals.h"

namespace glossmill {

class QuittingTest : public DesktopFixture {
  Q_OBJECT

  void change() {
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Good night"));
    editor().setFocus();
    type(QStringLiteral("Gute Nacht"));
  }

 private Q_SLOTS:
  void endsWithoutAQuestionWhenNothingHasChanged() {
    openDemo();
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(terminations(), 1);
    QVERIFY(alerts().isEmpty());
  }

  void endsFromTheLogWindow() {
    openDemo();
    press(Qt::Key_2, Qt::ControlModifier);
    QVERIFY(QTest::qWaitForWindowActive(&logWindow()));
    press(Qt::Key_Q, Qt::ControlModifier, &logWindow());
    QCOMPARE(terminations(), 1);
  }

  void endsWithTheCloseBoxOfTheProjectWindow() {
    openDemo();
    QVERIFY(!window().close());
    QCOMPARE(terminations(), 1);
  }

  void doesNotEndWithTheCloseBoxOfTheLogWindow() {
    openDemo();
    program().delegate().openLogWindow();
    QVERIFY(logWindow().close());
    QCOMPARE(terminations(), 0);
  }

  void staysWhenTheQuestionIsCancelled() {
    openDemo();
    change();
    answerAlert(QStringLiteral("Cancel"));
    QVERIFY(!window().close());
    QCOMPARE(terminations(), 0);
    QVERIFY(window().isVisible());
    QVERIFY(project().changed());
  }

  void savesAndEnds() {
    openDemo();
    change();
    answerAlert(QStringLiteral("Save"));
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(terminations(), 1);
    QVERIFY(demo().read(QStringLiteral("de.lproj/Localizable.strings")).contains("Gute Nacht"));
  }

  void asksOnceWhenTheDesktopWantsTheEnd() {
    openDemo();
    program().delegate().openLogWindow();
    change();
    answerAlert(QStringLiteral("Cancel"));
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(terminations(), 0);
    QVERIFY(window().isVisible());
    QVERIFY(logWindow().isVisible());
    answerAlert(QStringLiteral("Delete"));
    QCoreApplication::sendEvent(qApp, &quit);
    QCOMPARE(terminations(), 1);
  }

  void asksNobodyAtTheEndOfTheSession() {
    openDemo();
    change();
    program().quitPath().prepareForEndOfSession();
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    QCOMPARE(exitCode(), std::optional(0));
    QVERIFY(alerts().isEmpty());
    QVERIFY(project().hasUnsavedEdits());
  }

  void asksAgainWhenTheSessionGoesOn() {
    openDemo();
    change();
    program().quitPath().prepareForEndOfSession();
    type(QStringLiteral("!"));
    answerAlert(QStringLiteral("Cancel"));
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(exitCode(), std::optional<int>());
  }

  void asksNobodyWhenASignalEndsIt() {
    openDemo();
    change();
    const EndSignals signals([this](int signal) { program().quitPath().endAtOnce(128 + signal); });
    raise(SIGTERM);
    QTRY_COMPARE(exitCode(), std::optional(128 + SIGTERM));
    QVERIFY(alerts().isEmpty());
    QCOMPARE(terminations(), 0);
  }

  void doesNotAskTwiceAtATime() {
    openDemo();
    change();
    QTimer::singleShot(20, this, [this] {
      QVERIFY(program().panels().isAlertUp());
      program().quitPath().request();
      answerAlert(QStringLiteral("Cancel"));
    });
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(alerts().size(), 1);
    QCOMPARE(terminations(), 0);
  }

  void cancelsAScanInPhaseOne() {
    demo().growBy(2000);
    startWith(demo().directory());
    QVERIFY(program().threads().jobsRunning() > 0);
    program().quitPath().request();
    QCOMPARE(terminations(), 1);
    QCOMPARE(program().threads().jobsRunning(), 0);
    QVERIFY(!isSheetUp());
  }

  void cancelsAScanInPhaseTwoWithTheMenu() {
    demo().growBy(20000);
    startWith(demo().directory());
    waitForPhaseTwo();
    command(CommandId::Quit).trigger();
    QCOMPARE(terminations(), 1);
    QCOMPARE(program().threads().jobsRunning(), 0);
  }

  void leavesTheSheetThatACancelledPhaseTwoHasLeft() {
    demo().growBy(20000);
    startWith(demo().directory());
    waitForPhaseTwo();
    click(inSheet<QPushButton>("cancelButton"));
    QTRY_COMPARE_WITH_TIMEOUT(program().threads().jobsRunning(), 0, 100000);
    QVERIFY(isSheetUp());
    waitForProjectWindow();
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(terminations(), 1);
  }

  void cancelsAnExportThatIsRunning() {
    demo().growBy(20000);
    openDemo();
    project().exportLanguageToFileAllStrings(
        project().selectedLanguage(), FileUrl(fromQt(demo().file(QStringLiteral("out.txt")))), ExportScope::AllStrings);
    QCoreApplication::processEvents();
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(terminations(), 1);
    QVERIFY(!QFile::exists(demo().file(QStringLiteral("out.txt"))));
  }

  void asksAboutWhatABaseLanguageHasChangedBeforeItWasCancelled() {
    demo().growBy(20000);
    openDemo();
    project().languageFromBaseLanguage(project().selectedLanguage());
    QVERIFY(waitBriefly([this] { return project().changed(); }));
    answerAlert(QStringLiteral("Delete"));
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(terminations(), 1);
  }

  void endsWhileAChooserIsUp() {
    openDemo();
    project().addLanguage();
    press(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(terminations(), 1);
  }

  void cancelsAFilePanelFirst() {
    answerPanel([this](QFileDialog&) { program().quitPath().request(); });
    program().start(std::nullopt);
    QTRY_COMPARE(terminations(), 1);
  }

  void offersUnsavedChangesOnceMoreOnTheWayOut() {
    openDemo();
    change();
    answerAlert(QStringLiteral("Save"));
    program().delegate().applicationWillTerminate();
    QVERIFY(demo().read(QStringLiteral("de.lproj/Localizable.strings")).contains("Gute Nacht"));
  }

  void joinsAJobThatNobodyHasCancelled() {
    demo().growBy(2000);
    startWith(demo().directory());
    QVERIFY(program().threads().jobsRunning() > 0);
    // What ends the test takes the program away.
  }
};

static const TestRegistration<QuittingTest> kQuittingRegistration("Quitting");

}  // namespace glossmill

#include "QuittingTest.moc"
