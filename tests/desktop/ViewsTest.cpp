#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"
#include "desktop/tables/StringColumns.h"

namespace glossmill {

/// What narrows and arranges the strings of a project with two tables.
class ViewsTest : public DesktopFixture {
  Q_OBJECT

  using Keys = QStringList;
  QComboBox& tables() { return widget<QComboBox>("tablePopUp"); }
  void chooseTable(int index) {
    tables().setCurrentIndex(index);
    Q_EMIT tables().activated(index);
  }
  QAction& only(int number) { return *widget<QPushButton>("onlyButton").menu()->actions().at(number); }
  QStringList onlyTitles() {
    QStringList titles;
    for (const QAction* action : widget<QPushButton>("onlyButton").menu()->actions()) titles.append(action->text());
    return titles;
  }
  QMenu& columnMenu() { return *window().menuBar()->actions().at(2)->menu()->actions().first()->menu(); }
  void clickHead(int column) {
    const QHeaderView& header = *strings().horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }
  QString count() { return widget<QLabel>("stringCount").text(); }
  void openTables() {
    demo().giveTables();
    openDemo();
  }

 private Q_SLOTS:
  void offerTheTablesOfAProjectThatHasSeveral() {
    openTables();
    QVERIFY(tables().isVisible());
    QCOMPARE(tables().count(), 3);
    QCOMPARE(tables().itemText(0), QStringLiteral("All tables"));
    QCOMPARE(tables().itemText(1), QStringLiteral("App/Localizable"));
    QCOMPARE(tables().itemText(2), QStringLiteral("App/Menu"));
    QVERIFY(!strings().isColumnHidden(kTableColumn));
    QCOMPARE(cell(strings(), QStringLiteral("Sail"), kTableColumn), QStringLiteral("App/Menu"));
    QCOMPARE(strings().horizontalHeader()->visualIndex(kTableColumn), 1);
  }

  void offerNoTableWhereThereIsOne() {
    openDemo();
    QVERIFY(!tables().isVisible());
    QVERIFY(strings().isColumnHidden(kTableColumn));
  }

  void narrowTheStringsToATable() {
    openTables();
    QCOMPARE(firstColumn(strings()), Keys({QStringLiteral("Ebb"), QStringLiteral("Flood"), QStringLiteral("Tide"),
                                           QStringLiteral("Old"), QStringLiteral("Sail")}));
    chooseTable(2);
    QCOMPARE(firstColumn(strings()), Keys{QStringLiteral("Sail")});
    QCOMPARE(count(), QStringLiteral("Strings: 1 of 5"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("1 missing"));
    chooseTable(0);
    QCOMPARE(count(), QStringLiteral("Strings: 5"));
  }

  void combineATableWithASearch() {
    openTables();
    chooseTable(1);
    search().setText(QStringLiteral("s"));
    QVERIFY(!firstColumn(strings()).contains(QStringLiteral("Sail")));
    search().clear();
    QCOMPARE(firstColumn(strings()).size(), 4);
  }

  void takeNothingOutOfASave() {
    openTables();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Ebb"));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Niedrigwasser"));
    chooseTable(2);
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(demo().read(QStringLiteral("App/de.lproj/Localizable.strings")).contains("Niedrigwasser"));
  }

  void showOnlyWhatIsWanted() {
    openTables();
    select(languages(), QStringLiteral("de"));
    QCOMPARE(onlyTitles(), QStringList({QStringLiteral("Not &translated"), QStringLiteral("&Unused"),
                                        QStringLiteral("&Changed since the last save")}));
    only(0).trigger();
    QCOMPARE(firstColumn(strings()), Keys{QStringLiteral("Flood")});
    QCOMPARE(widget<QPushButton>("onlyButton").text(), QStringLiteral("Only: Not translated"));
    QCOMPARE(count(), QStringLiteral("Strings: 1 of 5"));
    only(1).trigger();
    QCOMPARE(firstColumn(strings()), Keys());
    only(0).trigger();
    QCOMPARE(firstColumn(strings()), Keys{QStringLiteral("Old")});
    chooseTable(2);
    QCOMPARE(firstColumn(strings()), Keys());
    chooseTable(0);
    only(1).trigger();
    QCOMPARE(widget<QPushButton>("onlyButton").text(), QStringLiteral("Filter"));
    QCOMPARE(firstColumn(strings()).size(), 5);
  }

  void showWhatIsNotTranslatedIntoTheLanguageThatIsChosen() {
    openTables();
    only(0).trigger();
    select(languages(), QStringLiteral("de"));
    select(languages(), QStringLiteral("en"));
    QCOMPARE(firstColumn(strings()), Keys{QStringLiteral("Flood")});  // which was selected
    press(Qt::Key_Down);
    select(languages(), QStringLiteral("de"));
    QCOMPARE(firstColumn(strings()), Keys{QStringLiteral("Flood")});
  }

  void keepTheStringThatIsBeingTranslated() {
    openTables();
    select(languages(), QStringLiteral("de"));
    only(0).trigger();
    editor().setFocus();
    type(QStringLiteral("Flut"));
    QCOMPARE(firstColumn(strings()), Keys{QStringLiteral("Flood")});
  }

  void showWhatHasChangedSinceTheLastSave() {
    openTables();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Tide"));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Tide"));
    only(2).trigger();
    QCOMPARE(firstColumn(strings()), Keys{QStringLiteral("Tide")});
    only(2).trigger();
    press(Qt::Key_S, Qt::ControlModifier);
    only(2).trigger();
    QCOMPARE(firstColumn(strings()), Keys());
  }

  void offerUnusedStringsOnlyWhereTheRulesKnowThem() {
    openDemo();
    QVERIFY(!only(1).isVisible());
    QVERIFY(only(0).isVisible());
  }

  void stepToWhatIsNotTranslated() {
    openTables();
    select(languages(), QStringLiteral("de"));
    QVERIFY(isEnabled(CommandId::NextUntranslated));
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(widget<QPlainTextEdit>("keyText").toPlainText(), QStringLiteral("Flood"));
    QVERIFY(editor().hasFocus());
    type(QStringLiteral("Flut"));
    QVERIFY(!isEnabled(CommandId::NextUntranslated));
    QVERIFY(!isEnabled(CommandId::PreviousUntranslated));
  }

  void sortByAClickOnAHead() {
    openTables();
    const Keys sources = firstColumn(strings());
    clickHead(0);
    QCOMPARE(firstColumn(strings()), Keys({QStringLiteral("Ebb"), QStringLiteral("Flood"), QStringLiteral("Old"),
                                           QStringLiteral("Sail"), QStringLiteral("Tide")}));
    QCOMPARE(strings().currentIndex().row(), 0);
    clickHead(0);
    QCOMPARE(firstColumn(strings()).first(), QStringLiteral("Tide"));
    QCOMPARE(strings().currentIndex().row(), 4);
    clickHead(0);
    QCOMPARE(firstColumn(strings()), sources);
    QVERIFY(!strings().horizontalHeader()->isSortIndicatorShown());
  }

  void rememberOrderPlacesAndHiddenColumns() {
    openTables();
    clickHead(0);
    clickHead(0);
    strings().horizontalHeader()->moveSection(strings().horizontalHeader()->visualIndex(3), 0);
    columnMenu().actions().at(2)->trigger();
    QVERIFY(strings().isColumnHidden(2));
    startAnew();
    openDemo();
    QCOMPARE(firstColumn(strings()).first(), QStringLiteral("Tide"));
    QCOMPARE(strings().horizontalHeader()->visualIndex(3), 0);
    QVERIFY(strings().isColumnHidden(2));
    QVERIFY(!columnMenu().actions().at(2)->isChecked());
    columnMenu().actions().at(2)->trigger();
    QVERIFY(!strings().isColumnHidden(2));
  }

  void giveWhatIsWiderToTexts() {
    openTables();
    QHeaderView& header = *strings().horizontalHeader();
    const int status = header.sectionSize(5);
    const int key = header.sectionSize(0);
    QCOMPARE(header.length(), strings().viewport()->width());
    window().resize(window().width() + 200, window().height());
    QTRY_VERIFY(header.sectionSize(0) > key);
    QCOMPARE(header.sectionSize(5), status);
    QCOMPARE(header.length(), strings().viewport()->width());
  }

  void showTheSourceTextWhereItIsNotTheKey() {
    openTables();
    QVERIFY(!strings().isColumnHidden(kSourceColumn));
    QCOMPARE(cell(strings(), QStringLiteral("Flood"), kSourceColumn), QStringLiteral("Flood tide"));
    select(strings(), QStringLiteral("Flood"));
    QVERIFY(widget<QPlainTextEdit>("sourceText").isVisible());
    QCOMPARE(widget<QPlainTextEdit>("sourceText").toPlainText(), QStringLiteral("Flood tide"));
    QVERIFY(project().closeProject());
    QVERIFY(!widget<QPlainTextEdit>("sourceText").isVisible());
  }

  void showNoSourceTextThatIsAlwaysTheKey() {
    openDemo();
    QVERIFY(strings().isColumnHidden(kSourceColumn));
    QVERIFY(!widget<QPlainTextEdit>("sourceText").isVisible());
  }

  void showAnotherLanguageBesideTheTranslation() {
    openTables();
    select(strings(), QStringLiteral("Ebb"));
    QMenu& beside = *window().menuBar()->actions().at(2)->menu()->actions().at(1)->menu();
    Q_EMIT beside.aboutToShow();
    QStringList titles;
    for (const QAction* action : beside.actions()) titles.append(action->text());
    QCOMPARE(titles, QStringList({QStringLiteral("Source Text"), QStringLiteral("German (de)"),
                                  QStringLiteral("English (en)")}));
    beside.actions().at(1)->trigger();
    QCOMPARE(widget<QPlainTextEdit>("sourceText").toPlainText(), QStringLiteral("Ebbe"));
    QCOMPARE(cell(strings(), QStringLiteral("Tide"), kSourceColumn), QStringLiteral("Gezeiten"));
    QCOMPARE(widget<QLabel>("sourceLabel").text(), QStringLiteral("Reference: de"));
  }

  void showTheSelectedStringAfterAReload() {
    demo().growBy(200);
    openDemo();
    select(strings(), QStringLiteral("string 199"));
    QVERIFY(project().reloadProject());
    waitForJob();
    QCOMPARE(toQt(project().selectedString()->name()), QStringLiteral("string 199"));
    const QRect row = strings().visualRect(strings().currentIndex());
    QVERIFY(strings().viewport()->rect().contains(row.center()));
  }

  void forgetTheTableWithTheProject() {
    openTables();
    chooseTable(2);
    QVERIFY(project().reloadProject());
    waitForJob();
    QCOMPARE(tables().currentIndex(), 0);
    QCOMPARE(firstColumn(strings()).size(), 5);
    QVERIFY(project().closeProject());
    QVERIFY(!tables().isVisible());
  }
};

static const TestRegistration<ViewsTest> kViewsRegistration("Views");

}  // namespace glossmill

#include "ViewsTest.moc"
