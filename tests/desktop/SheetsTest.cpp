#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"
#include "desktop/sheets/SheetPanel.h"

namespace glossmill {

class SheetsTest : public DesktopFixture {
  Q_OBJECT

  QString focusName() { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); }

 private Q_SLOTS:
  void disablesWhatItCovers() {
    openDemo();
    project().addLanguage();
    QVERIFY(!strings().isEnabled());
    QVERIFY(!editor().isEnabled());
    QVERIFY(!widget<QToolBar>("toolBar").isEnabled());
    QVERIFY(window().menuWidget()->isEnabled());
    inSheet<QPushButton>("cancelButton").click();
    QVERIFY(strings().isEnabled());
    QVERIFY(editor().isEnabled());
    QVERIFY(widget<QToolBar>("toolBar").isEnabled());
  }

  void greysCommandsThatItCovers() {
    openDemo();
    project().addLanguage();
    for (const CommandId id :
         {CommandId::Open, CommandId::Close, CommandId::Export, CommandId::Import, CommandId::AddLanguage,
          CommandId::BaseLanguage, CommandId::Find, CommandId::NextString, CommandId::NextLanguage}) {
      QVERIFY(!isEnabled(id));
    }
    for (const CommandId id :
         {CommandId::Quit, CommandId::ProjectWindow, CommandId::LogWindow, CommandId::KeyboardShortcuts}) {
      QVERIFY(isEnabled(id));
    }
    press(Qt::Key_Escape);
    QVERIFY(isEnabled(CommandId::Export));
  }

  void greysTheRecentProjects() {
    openDemo();
    QMenu& menu = program().recentMenu().menu();
    project().addLanguage();
    Q_EMIT menu.aboutToShow();
    QVERIFY(!menu.actions().first()->isEnabled());
    QVERIFY(!menu.actions().last()->isEnabled());
    press(Qt::Key_Escape);
    Q_EMIT menu.aboutToShow();
    QVERIFY(menu.actions().first()->isEnabled());
  }

  void hasMenusThatOpen() {
    openDemo();
    project().addLanguage();
    QMenu* file = window().menuBar()->actions().first()->menu();
    press(Qt::Key_F, Qt::AltModifier);
    QTRY_VERIFY(file->isVisible());
    QVERIFY(command(CommandId::Quit).isEnabled());
    QVERIFY(!command(CommandId::Open).isEnabled());
    QTest::keyClick(file, Qt::Key_Escape);
    QVERIFY(!file->isVisible());
    QVERIFY(isSheetUp());
  }

  void givesTheKeyboardBackWhenTheMenuBarIsLeft() {
    openDemo();
    project().addLanguage();
    QCOMPARE(focusName(), QStringLiteral("searchField"));
    window().menuBar()->setFocus();
    QTest::keyClick(window().menuBar(), Qt::Key_Escape);
    QTRY_COMPARE(focusName(), QStringLiteral("searchField"));
    QVERIFY(isSheetUp());
  }

  void keepsTabInside() {
    openDemo();
    project().addLanguage();
    QStringList met;
    for (int step = 0; step < 5; ++step) {
      met.append(focusName());
      press(Qt::Key_Tab);
    }
    QCOMPARE(met,
             QStringList({QStringLiteral("searchField"), QStringLiteral("isoPopUpButton"), QStringLiteral("tableView"),
                          QStringLiteral("cancelButton"), QStringLiteral("doneButton")}));
    QCOMPARE(focusName(), QStringLiteral("searchField"));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focusName(), QStringLiteral("doneButton"));
  }

  void cancelsWithEscapeFromEveryControl() {
    openDemo();
    for (const char* name : {"searchField", "isoPopUpButton", "tableView", "doneButton"}) {
      project().addLanguage();
      inSheet<QWidget>(name).setFocus();
      press(Qt::Key_Escape);
      QVERIFY2(!isSheetUp(), name);
    }
    QCOMPARE(languages().model()->rowCount(), 3);
  }

  void pressesTheButtonThatHasTheKeyboardWithReturn() {
    openDemo();
    project().addLanguage();
    inSheet<QPushButton>("cancelButton").setFocus();
    press(Qt::Key_Return);
    QVERIFY(!isSheetUp());
    QCOMPARE(languages().model()->rowCount(), 3);
  }

  void givesTheKeyboardBackToWhereItWas() {
    openDemo();
    languages().setFocus();
    project().addLanguage();
    press(Qt::Key_Escape);
    QVERIFY(languages().hasFocus());
    editor().setFocus();
    project().exportStrings();
    press(Qt::Key_Escape);
    QVERIFY(editor().hasFocus());
  }

  void swallowsClicksBesideIt() {
    openDemo();
    project().addLanguage();
    const QString before = toQt(project().selectedString()->name());
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(30, window().height() / 3));
    QCOMPARE(toQt(project().selectedString()->name()), before);
    QVERIFY(isSheetUp());
    QCOMPARE(focusName(), QStringLiteral("searchField"));
  }

  void staysInTheMiddleWhenTheWindowIsResized() {
    openDemo();
    project().addLanguage();
    window().resize(900, 640);
    QCoreApplication::processEvents();
    const QWidget& content = program().sheets().current()->widget();
    const int middle = content.mapTo(&window(), content.rect().center()).x();
    QVERIFY(qAbs(middle - window().width() / 2) <= 2);
    QVERIFY(content.mapTo(&window(), content.rect().bottomLeft()).y() < window().height());
  }

  void canBeShownAgain() {
    openDemo();
    for (int time = 0; time < 3; ++time) {
      project().exportStrings();
      QVERIFY(isSheetUp());
      press(Qt::Key_Escape);
      QVERIFY(!isSheetUp());
    }
  }

  void copiesFromItsFields() {
    openDemo();
    project().addLanguage();
    type(QStringLiteral("ger"));
    press(Qt::Key_A, Qt::ControlModifier);
    QMenu* edit = window().menuBar()->actions().at(1)->menu();
    Q_EMIT edit->aboutToShow();
    QVERIFY(isEnabled(CommandId::Copy));
  }
};

static const TestRegistration<SheetsTest> kSheetsRegistration("Sheets");

}  // namespace glossmill

#include "SheetsTest.moc"
