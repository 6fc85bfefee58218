#include <QDir>
#include <QListWidget>
#include <QSettings>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class LanguagesTest : public DesktopFixture {
  Q_OBJECT

  QTableView& list() { return inSheet<QTableView>("tableView"); }
  QLineEdit& field() { return inSheet<QLineEdit>("searchField"); }
  QComboBox& lengths() { return inSheet<QComboBox>("isoPopUpButton"); }
  QString selectedName() { return list().model()->index(list().currentIndex().row(), 0).data().toString(); }

 private Q_SLOTS:
  void addsALanguageWithTheKeyboardAlone() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(field().hasFocus());
    type(QStringLiteral("FREN"));
    QCOMPARE(firstColumn(list()), QStringList({QStringLiteral("French")}));
    press(Qt::Key_Return);
    QVERIFY(!isSheetUp());
    QCOMPARE(firstColumn(languages()).last(), QStringLiteral("fr"));
    QVERIFY(QDir(demo().file(QStringLiteral("fr.lproj"))).exists());
    QVERIFY(!window().isWindowModified());
    QCOMPARE(widget<QLabel>("languageCount").text(), QStringLiteral("Languages: 4"));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 5), QStringLiteral("1 missing"));
  }

  /// Only another selection shows the translation anew.
  void leavesTheEditorAloneWhenALanguageIsAdded() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    LocalizeString& shown = *project().selectedString();
    LanguagesDict translations = shown.languagesDict();
    translations.set(LanguageCode("de"), "behind its back");
    shown.setLanguagesDict(translations);
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("FREN"));
    press(Qt::Key_Return);
    QCOMPARE(firstColumn(languages()).last(), QStringLiteral("fr"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Auf"));
    select(languages(), QStringLiteral("en"));
    select(languages(), QStringLiteral("de"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("behind its back"));
  }

  void makesALanguageForTheTablesThatAreChosen() {
    demo().giveTables();
    demo().write(QStringLiteral("App/Help/en.lproj/Help.strings"), "\"Topic\" = \"Topic\";\n");
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    auto& tables = inSheet<QListWidget>("tablesList");
    QVERIFY(tables.isVisible());
    QStringList checked;
    for (int row = 0; row < tables.count(); ++row) {
      if (tables.item(row)->checkState() == Qt::Checked) checked.append(tables.item(row)->text());
    }
    QCOMPARE(checked, QStringList({QStringLiteral("App/Localizable"), QStringLiteral("App/Menu")}));
    QCOMPARE(tables.count(), 3);
    for (int row = 0; row < tables.count(); ++row) tables.item(row)->setCheckState(Qt::Unchecked);
    QVERIFY(!inSheet<QPushButton>("doneButton").isEnabled());
    tables.findItems(QStringLiteral("App/Help/Help"), Qt::MatchExactly).front()->setCheckState(Qt::Checked);
    field().setText(QStringLiteral("FREN"));
    click(inSheet<QPushButton>("doneButton"));
    QVERIFY(!isSheetUp());
    QVERIFY(QDir(demo().file(QStringLiteral("App/Help/fr.lproj"))).exists());
    QVERIFY(!QDir(demo().file(QStringLiteral("App/fr.lproj"))).exists());
  }

  void asksForNoTablesWhereThereIsOne() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!inSheet<QListWidget>("tablesList").isVisible());
    press(Qt::Key_Escape);
  }

  void findsByCodeToo() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("ja"));
    QVERIFY(firstColumn(list()).contains(QStringLiteral("Japanese")));
    press(Qt::Key_Escape);
  }

  void startsWithTwoLetterCodesAndTheFirstSelected() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(lengths().currentIndex(), 0);
    QCOMPARE(list().currentIndex().row(), 0);
    for (int row = 0; row < list().model()->rowCount(); ++row) {
      QCOMPARE(list().model()->index(row, 1).data().toString().size(), 2);
    }
    press(Qt::Key_Escape);
    QCOMPARE(QSettings().value(QStringLiteral("SelectLangaugeFilterButtonState")).toInt(), 0);
    QVERIFY(QSettings().contains(QStringLiteral("SelectLangaugeFilterButtonState")));
  }

  void remembersTheLengthOfTheCodes() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    lengths().setFocus();
    press(Qt::Key_Down);
    QCOMPARE(list().model()->index(0, 1).data().toString().size(), 3);
    QVERIFY(list().currentIndex().isValid());
    press(Qt::Key_Escape);
    press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(lengths().currentIndex(), 1);
    press(Qt::Key_Escape);
  }

  void isSortedByName() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    const QStringList names = firstColumn(list());
    QVERIFY(names.size() > 150);
    QVERIFY(std::is_sorted(names.begin(), names.end()));
    press(Qt::Key_Escape);
  }

  void movesThroughTheListFromTheField() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("norw"));
    QCOMPARE(list().model()->rowCount(), 3);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QVERIFY(field().hasFocus());
    QCOMPARE(list().currentIndex().row(), 2);
    press(Qt::Key_Return);
    QCOMPARE(languages().model()->rowCount(), 4);
  }

  void marksLanguagesInUse() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    const int german = rowOf(list(), QStringLiteral("German"));
    const int french = rowOf(list(), QStringLiteral("French"));
    const auto color = [this](int row) {
      return list().model()->index(row, 0).data(Qt::ForegroundRole).value<QColor>();
    };
    QVERIFY(color(german) != color(french));
    QVERIFY(color(german).green() > color(german).red() && color(german).green() > color(german).blue());
    QCOMPARE(list().model()->index(german, 2).data().toString(), QStringLiteral("in the project"));
    press(Qt::Key_Escape);
  }

  void addsALanguageInUseASecondTime() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("german"));
    press(Qt::Key_Return);
    QCOMPARE(firstColumn(languages()).count(QStringLiteral("de")), 2);
  }

  void addsWithADoubleClick() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("french"));
    const QPoint row = list().visualRect(list().model()->index(0, 0)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, row);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, Qt::NoModifier, row);
    QVERIFY(!isSheetUp());
    QCOMPARE(firstColumn(languages()).last(), QStringLiteral("fr"));
  }

  void ignoresReturnWhenNothingIsFound() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("qqq"));
    press(Qt::Key_Return);
    QVERIFY(isSheetUp());
    press(Qt::Key_Escape);
  }

  void changesNothingWhenItIsCancelled() {
    openDemo();
    const QStringList before = QDir(demo().directory()).entryList();
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("french"));
    press(Qt::Key_Escape);
    QCOMPARE(QDir(demo().directory()).entryList(), before);
    QCOMPARE(languages().model()->rowCount(), 3);
  }

  void tellsWhenTheDirectoryCannotBeMade() {
    openDemo();
    demo().write(QStringLiteral("Demo"), "");
    answerAlert(QStringLiteral("Ok"));
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("french"));
    press(Qt::Key_Return);
    QVERIFY(alerts().first().startsWith(QStringLiteral("Error creating file:///")));
    QCOMPARE(languages().model()->rowCount(), 3);
  }

  void offersAnAddedLanguageForExport() {
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    press(Qt::Key_Escape);
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("french"));
    press(Qt::Key_Return);
    press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(firstColumn(list()).contains(QStringLiteral("fr")));
    press(Qt::Key_Escape);
  }

  void seesTheAddedLanguageWhenItIsOpenedAgain() {
    openDemo();
    press(Qt::Key_L, Qt::ControlModifier);
    type(QStringLiteral("french"));
    press(Qt::Key_Return);
    press(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(field().text().isEmpty());
    QCOMPARE(list().model()->index(rowOf(list(), QStringLiteral("French")), 2).data().toString(),
             QStringLiteral("in the project"));
    press(Qt::Key_Escape);
  }
};

static const TestRegistration<LanguagesTest> kLanguagesRegistration("Languages");

}  // namespace glossmill

#include "LanguagesTest.moc"
