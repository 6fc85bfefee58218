#include <QFileDialog>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QToolBar>
#include <QToolTip>
#include <algorithm>
#include <set>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"
#include "model/Settings.h"

namespace glossmill {

class OpeningTest : public DesktopFixture {
  Q_OBJECT

 private Q_SLOTS:
  void showsTheTablesOfTheDirectoryGivenAtStart() {
    openDemo();
    QCOMPARE(firstColumn(strings()),
             QStringList({QStringLiteral("Open"), QStringLiteral("Close"), QStringLiteral("Good morning"),
                          QStringLiteral("Good night"), QStringLiteral("First line\u21B5second line")}));
    QCOMPARE(firstColumn(languages()), QStringList({QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("en")}));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 1), QStringLiteral("German"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("2 missing"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 3), QStringLiteral("60 %"));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 2), QStringLiteral("Button"));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 3), QStringLiteral("Demo.m"));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 4), QStringLiteral("1"));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 5), QStringLiteral("Complete"));
    QCOMPARE(cell(strings(), QStringLiteral("Close"), 5), QStringLiteral("1 missing"));
  }

  void selectsTheFirstStringAndLanguage() {
    openDemo();
    QCOMPARE(strings().currentIndex().row(), 0);
    QCOMPARE(languages().currentIndex().row(), 0);
    QCOMPARE(editor().toPlainText(), QStringLiteral("\u0627\u0641\u062A\u062D"));
    QCOMPARE(widget<QPlainTextEdit>("keyText").toPlainText(), QStringLiteral("Open"));
    QVERIFY(widget<QPlainTextEdit>("commentText").toPlainText().contains(QStringLiteral("Demo.m")));
  }

  void givesTheKeyboardToTheStrings() {
    openDemo();
    QVERIFY(strings().hasFocus());
    press(Qt::Key_Down);
    QCOMPARE(strings().currentIndex().row(), 1);
  }

  void countsUnderTheTables() {
    openDemo();
    QCOMPARE(widget<QLabel>("stringCount").text(), QStringLiteral("Strings: 5"));
    QCOMPARE(widget<QLabel>("languageCount").text(), QStringLiteral("Languages: 3"));
  }

  void namesTheWindowAfterTheProjectWhileTheScanStillRuns() {
    startWith(demo().directory());
    QCOMPARE(window().windowTitle(), QStringLiteral("Demo[*]"));
    QVERIFY(project().longJobRunning());
    QVERIFY(!window().isWindowModified());
    waitForJob();
  }

  void asksForADirectoryWithoutOne() {
    answerPanel([this](QFileDialog& panel) {
      QCOMPARE(panel.windowTitle(), QStringLiteral("Choose project directory..."));
      QCOMPARE(panel.fileMode(), QFileDialog::Directory);
      QVERIFY(!panel.testOption(QFileDialog::ReadOnly));
      QCOMPARE(panel.labelText(QFileDialog::Accept), QStringLiteral("Choose"));
      panel.setDirectory(demo().directory());
      panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(demo().directory());
      QTest::keyClick(&panel, Qt::Key_Return);
    });
    program().start(std::nullopt);
    QVERIFY(project().longJobRunning());
    waitForJob();
    QCOMPARE(strings().model()->rowCount(), 5);
  }

  void opensNothingWhenThePanelIsCancelled() {
    answerPanel([](QFileDialog& panel) { panel.reject(); });
    program().start(std::nullopt);
    QVERIFY(!project().opened());
    QVERIFY(!project().longJobRunning());
    QVERIFY(window().isVisible());
  }

  void cancelsAPanelThatItsAnswerLeavesUp() {
    answerPanel([](QFileDialog&) {});
    QEXPECT_FAIL("", "on purpose", Continue);
    program().start(std::nullopt);
    QVERIFY(!project().opened());
    QVERIFY(!program().panels().isFilePanelUp());
  }

  void theWindowComesBackFromBeingMinimisedAsLargeAsItWas() {
    openDemo();
    window().setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    command(CommandId::ProjectWindow).trigger();
    QTRY_COMPARE(window().windowState() & (Qt::WindowMaximized | Qt::WindowMinimized), Qt::WindowMaximized);
  }

  void startsThePanelAtTheMostRecentProject() {
    QSettings settings;
    settings.setValue(QStringLiteral("RecentUrls"), QStringList({demo().directory()}));
    settings.sync();
    QString shown;
    answerPanel([&shown](QFileDialog& panel) {
      shown = panel.directory().path();
      panel.reject();
    });
    program().start(std::nullopt);
    QCOMPARE(shown, demo().directory());
  }

  void saysThatAProjectIsToBeOpenedFirst() {
    answerPanel([](QFileDialog& panel) { panel.reject(); });
    program().start(std::nullopt);
    waitForProjectWindow();
    QToolBar& bar = widget<QToolBar>("toolBar");
    for (const int place : {2, 3, 4, 5}) {
      QToolTip::hideText();
      QTRY_VERIFY(!QToolTip::isVisible());
      QAction* action = bar.actions().at(place);
      click(*bar.widgetForAction(action));
      QVERIFY2(!isSheetUp(), qPrintable(action->text()));
      QVERIFY(QToolTip::isVisible());
      QCOMPARE(QToolTip::text(), QStringLiteral("Open a project first"));
      QVERIFY(action->toolTip().endsWith(QStringLiteral("\nOpen a project first")));
    }
    openDemo();
    for (const int place : {2, 3, 4, 5}) {
      click(*bar.widgetForAction(bar.actions().at(place)));
      QVERIFY(isSheetUp());
      press(Qt::Key_Escape);
      QVERIFY(!bar.actions().at(place)->toolTip().contains(QLatin1Char('\n')));
    }
  }

  void offersTheLanguagesOfAProjectThatWasOpenedAfterATry() {
    answerPanel([](QFileDialog& panel) { panel.reject(); });
    program().start(std::nullopt);
    waitForProjectWindow();
    widget<QToolBar>("toolBar").actions().at(3)->trigger();
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(firstColumn(inSheet<QTableView>("tableView")), firstColumn(languages()));
    QCOMPARE(languages().model()->rowCount(), 3);
    press(Qt::Key_Escape);
  }

  void remembersTheProjectInTheRecentMenu() {
    openDemo();
    const QList<QAction*> items = program().recentMenu().menu().actions();
    QCOMPARE(items.size(), 3);
    QCOMPARE(items.first()->text(), demo().directory());
    QVERIFY(items.at(1)->isSeparator());
    QCOMPARE(items.last()->text(), QStringLiteral("Clear Menu"));
    QCOMPARE(QSettings().value(QStringLiteral("RecentUrls")).toStringList(), QStringList({demo().directory()}));
  }

  void storesNothingThatIsNotInTheTableOfSettings() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    press(Qt::Key_Escape);
    program().delegate().openLogWindow();
    command(CommandId::UseXcodeRules).trigger();
    waitForJob();
    startAnew();
    std::set<SettingId> stored;
    for (const QString& key : QSettings().allKeys()) {
      const QString start = key.section(QLatin1Char('/'), 0, 0);
      const auto known = std::ranges::find_if(settings(), [&](const Setting& each) { return toQt(each.key) == start; });
      QVERIFY2(known != settings().end(), qPrintable(key));
      stored.insert(known->id);
    }
    QCOMPARE(stored.size(), settings().size());
  }

  void opensThePanelAtARecentProjectThatIsChosen() {
    openDemo();
    QString shown;
    answerPanel([&shown](QFileDialog& panel) {
      shown = panel.directory().path();
      panel.reject();
    });
    program().recentMenu().menu().actions().first()->trigger();
    QCOMPARE(shown, demo().directory());
    QVERIFY(!project().opened());
  }

  void clearsTheRecentMenu() {
    openDemo();
    QMenu& menu = program().recentMenu().menu();
    menu.actions().last()->trigger();
    QCOMPARE(menu.actions().size(), 1);
    Q_EMIT menu.aboutToShow();
    QVERIFY(!menu.actions().first()->isEnabled());
    QVERIFY(!QSettings().contains(QStringLiteral("RecentUrls")));
  }

  void showsAnAmpersandOfARecentPath() {
    demo().write(QStringLiteral("a & b/x.xcodeproj/project.pbxproj"), "");
    startWith(demo().file(QStringLiteral("a & b")));
    waitForJob();
    QVERIFY(program().recentMenu().menu().actions().first()->text().endsWith(QStringLiteral("/a && b")));
  }

  void opensAnEmptyProjectWithoutAPackage() {
    demo().write(QStringLiteral("empty/readme"), "");
    startWith(demo().file(QStringLiteral("empty")));
    waitForJob();
    QVERIFY(project().opened());
    QCOMPARE(strings().model()->rowCount(), 0);
    QVERIFY(!editor().isEnabled());
    QVERIFY(program().delegate().logWindowController()->logText().find("Unable to find .xcodeproj") !=
            std::string::npos);
  }

  void cancelsInPhaseOneWithEscape() {
    startWith(demo().directory());
    QTest::keyClick(&inSheet<QPushButton>("cancelButton"), Qt::Key_Escape);
    waitForJob();
    QVERIFY(!isSheetUp());
    QVERIFY(!project().opened());
    QCOMPARE(strings().model()->rowCount(), 0);
  }

  void leavesTheSheetUpWhenPhaseTwoIsCancelled() {
    demo().growBy(20000);
    startWith(demo().directory());
    waitForPhaseTwo();
    click(inSheet<QPushButton>("cancelButton"));
    QTRY_COMPARE_WITH_TIMEOUT(program().threads().jobsRunning(), 0, 100000);
    QCoreApplication::processEvents();
    QVERIFY(isSheetUp());
    QVERIFY(isEnabled(CommandId::Quit));
    QVERIFY(!isEnabled(CommandId::Open));
  }

  void closesTheSheetThatWasLeftWithItsButton() {
    const QString german = QStringLiteral("de.lproj/Localizable.strings");
    const QByteArray small = demo().read(german);
    demo().growBy(20000);
    startWith(demo().directory());
    waitForPhaseTwo();
    auto& button = inSheet<QPushButton>("cancelButton");
    click(button);
    QTRY_COMPARE_WITH_TIMEOUT(button.text(), QStringLiteral("Close"), 100000);
    QCOMPARE(program().threads().jobsRunning(), 0);
    QVERIFY(isSheetUp());
    waitForProjectWindow();
    press(Qt::Key_Escape);
    QVERIFY(!isSheetUp());
    QVERIFY(!project().longJobRunning());
    QVERIFY(!project().opened());
    QCOMPARE(strings().model()->rowCount(), 0);
    QVERIFY(isEnabled(CommandId::Open));
    demo().write(german, small);
    demo().write(QStringLiteral("More.m"), "");
    openDemo();
    project().parseProject();
    QCOMPARE(inSheet<QPushButton>("cancelButton").text(), QStringLiteral("Cancel"));
    waitForJob();
  }
};

static const TestRegistration<OpeningTest> kOpeningRegistration("Opening");

}  // namespace glossmill

#include "OpeningTest.moc"
