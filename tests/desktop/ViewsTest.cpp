#include <QHeaderView>
#include <QMenu>

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
    QCOMPARE(widget<QPushButton>("onlyButton").text(), QStringLiteral("All"));
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
