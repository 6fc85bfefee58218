#include <QSettings>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class SearchTest : public DesktopFixture {
  Q_OBJECT

  QString count() { return widget<QLabel>("stringCount").text(); }

 private Q_SLOTS:
  void narrowsByKeyCommentAndTranslation() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    press(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(search().hasFocus());
    type(QStringLiteral("NIGHT"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good night")}));
    QCOMPARE(count(), QStringLiteral("Strings: 1 of 5"));
    search().setText(QStringLiteral("evening"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good night")}));
    search().setText(QStringLiteral("guten"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good morning")}));
  }

  void doesNotFindTextsAcrossTwoFields() {
    openDemo();
    search().setText(QStringLiteral("OpenButton"));
    QCOMPARE(strings().model()->rowCount(), 0);
  }

  void leavesTheListsAsTheyAre() {
    openDemo();
    search().setText(QStringLiteral("night"));
    QCOMPARE(project().stringList().size(), std::size_t{5});
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("2 missing"));
  }

  void isClearedWithEscape() {
    openDemo();
    press(Qt::Key_F, Qt::ControlModifier);
    type(QStringLiteral("night"));
    press(Qt::Key_Escape);
    QVERIFY(search().text().isEmpty());
    QCOMPARE(strings().model()->rowCount(), 5);
    QCOMPARE(count(), QStringLiteral("Strings: 5"));
    press(Qt::Key_Escape);
    QVERIFY(strings().hasFocus());
  }

  void keepsTheSelectedStringOrTakesTheFirst() {
    openDemo();
    select(strings(), QStringLiteral("Good night"));
    search().setText(QStringLiteral("good"));
    QCOMPARE(project().selectedString()->name(), std::string("Good night"));
    QCOMPARE(strings().currentIndex().row(), 1);
    search().setText(QStringLiteral("button"));
    QCOMPARE(project().selectedString()->name(), std::string("Open"));
    search().clear();
    QCOMPARE(project().selectedString()->name(), std::string("Open"));
  }

  void movesThroughTheTableFromTheField() {
    openDemo();
    press(Qt::Key_F, Qt::ControlModifier);
    type(QStringLiteral("good"));
    press(Qt::Key_Down);
    QCOMPARE(project().selectedString()->name(), std::string("Good night"));
    QVERIFY(search().hasFocus());
    press(Qt::Key_Return);
    QVERIFY(editor().hasFocus());
  }

  void looksIntoTheLanguageThatIsChosen() {
    openDemo();
    search().setText(QStringLiteral("zu"));
    QCOMPARE(strings().model()->rowCount(), 0);
    select(languages(), QStringLiteral("de"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Close")}));
  }

  void keepsTheStringThatIsEditedWhenTheLanguageChanges() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    search().setText(QStringLiteral("guten"));
    QCOMPARE(project().selectedString()->name(), std::string("Good morning"));
    press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good morning")}));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Good morning"));
  }

  void findsWhatWasTypedAMomentAgo() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    search().setText(QStringLiteral("gut"));
    search().clear();
    select(strings(), QStringLiteral("Good night"));
    editor().setFocus();
    type(QStringLiteral("gute nacht"));
    search().setText(QStringLiteral("nacht"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good night")}));
  }

  void keepsTheRowWhileItsTranslationIsTyped() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    search().setText(QStringLiteral("guten"));
    editor().setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("x"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good morning")}));
    QCOMPARE(cell(strings(), QStringLiteral("Good morning"), 1), QStringLiteral("x"));
  }

  void endsWithTheProject() {
    openDemo();
    search().setText(QStringLiteral("night"));
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(search().text().isEmpty());
    program().panels().presetDirectory(FileUrl(fromQt(demo().directory())));
    program().delegate().open();
    waitForJob();
    QCOMPARE(strings().model()->rowCount(), 5);
  }

  void filtersCompleteStringsWithTheKeyboard() {
    openDemo();
    filter().setFocus();
    press(Qt::Key_Down);
    QCOMPARE(filter().currentIndex(), 1);
    QVERIFY(!firstColumn(strings()).contains(QStringLiteral("Open")));
    QCOMPARE(count(), QStringLiteral("Strings: 4"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 3), QStringLiteral("60 %"));
    QCOMPARE(QSettings().value(QStringLiteral("StringFilterPopUp")).toInt(), 1);
    press(Qt::Key_Up);
    QCOMPARE(firstColumn(strings()).last(), QStringLiteral("Open"));
    QCOMPARE(count(), QStringLiteral("Strings: 5"));
  }

  void comesBackWithTheFilterOfTheLastRun() {
    QSettings().setValue(QStringLiteral("StringFilterPopUp"), 1);
    openDemo();
    QCOMPARE(filter().currentIndex(), 1);
    QCOMPARE(strings().model()->rowCount(), 4);
  }

  void standsAFilterThatDoesNotExist() {
    QSettings().setValue(QStringLiteral("StringFilterPopUp"), 7);
    openDemo();
    QCOMPARE(filter().currentIndex(), -1);
    QCOMPARE(strings().model()->rowCount(), 5);
  }

  void filtersWhatASearchHasNarrowed() {
    openDemo();
    search().setText(QStringLiteral("button"));
    QCOMPARE(strings().model()->rowCount(), 2);
    filter().setFocus();
    press(Qt::Key_Down);
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Close")}));
    press(Qt::Key_Up);
    QCOMPARE(strings().model()->rowCount(), 2);
  }

  void narrowsALargeProject() {
    demo().growBy(20000);
    demo().write(QStringLiteral("de.lproj/Localizable.strings"), "");
    openDemo();
    QCOMPARE(strings().model()->rowCount(), 20005);
    search().setText(QStringLiteral("string 1999"));
    QCoreApplication::processEvents();
    QCOMPARE(strings().model()->rowCount(), 11);
  }
};

static const TestRegistration<SearchTest> kSearchRegistration("Search");

}  // namespace glossmill

#include "SearchTest.moc"
