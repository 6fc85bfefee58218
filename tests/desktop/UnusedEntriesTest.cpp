#include <QCheckBox>
#include <QDialog>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

/// The window that takes out what nothing in the sources uses.
class UnusedEntriesTest : public DesktopFixture {
  Q_OBJECT

  QDialog* unused() {
    for (QWidget* each : QApplication::topLevelWidgets()) {
      if (each->objectName() == QLatin1String("UnusedEntriesWindow") && each->isVisible()) {
        return qobject_cast<QDialog*>(each);
      }
    }
    return nullptr;
  }
  template <typename Widget>
  Widget& in(const char* name) {
    auto* found = unused()->findChild<Widget*>(QLatin1String(name));
    if (!found) qFatal("there is no widget %s", name);
    return *found;
  }
  QStringList row(int number) {
    QStringList texts;
    const QAbstractItemModel& model = *in<QTableView>("unusedTable").model();
    for (int column = 0; column < model.columnCount(); ++column)
      texts.append(model.index(number, column).data().toString());
    return texts;
  }
  void openWindow() {
    demo().giveTables();
    openDemo();
    QVERIFY(isEnabled(CommandId::RemoveUnused));
    command(CommandId::RemoveUnused).trigger();
    QVERIFY(unused());
    QVERIFY(QTest::qWaitForWindowActive(unused()));
  }
  QByteArray german() { return demo().read(QStringLiteral("App/de.lproj/Localizable.strings")); }
  QByteArray english() { return demo().read(QStringLiteral("App/en.lproj/Localizable.strings")); }

 private Q_SLOTS:
  void showsWhatWouldGo() {
    openWindow();
    QCOMPARE(in<QTableView>("unusedTable").model()->rowCount(), 2);
    QCOMPARE(row(0), QStringList({QStringLiteral("de"), QStringLiteral("App/Localizable"), QStringLiteral("Old"),
                                  QStringLiteral("Alt")}));
    QCOMPARE(row(1).first(), QStringLiteral("en"));
    QCOMPARE(in<QCheckBox>("allUnused").text(), QStringLiteral("2 of 2 checked"));
    click(in<QPushButton>("cancelButton"));
    QVERIFY(!unused());
    QVERIFY(!project().changed());
  }

  void removesThemAsOneStep() {
    openWindow();
    press(Qt::Key_Return, Qt::NoModifier, unused());
    QVERIFY(!unused());
    QVERIFY(window().isWindowModified());
    waitForProjectWindow();
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!german().contains("Old") && !english().contains("Old"));
    QVERIFY(german().contains("Gezeiten"));
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(german().contains("\"Old\" = \"Alt\";") && english().contains("\"Old\" = \"Old\";"));
  }

  void leavesWhatIsNotChecked() {
    openWindow();
    QTRY_VERIFY(in<QTableView>("unusedTable").hasFocus());
    press(Qt::Key_Space, Qt::NoModifier, unused());
    QCOMPARE(in<QCheckBox>("allUnused").checkState(), Qt::PartiallyChecked);
    click(in<QPushButton>("removeButton"));
    waitForProjectWindow();
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(german().contains("Old") && !english().contains("Old"));
  }

  void checksAllOrNone() {
    openWindow();
    auto& all = in<QCheckBox>("allUnused");
    all.click();
    QCOMPARE(all.text(), QStringLiteral("0 of 2 checked"));
    QVERIFY(!in<QPushButton>("removeButton").isEnabled());
    all.click();
    QCOMPARE(all.checkState(), Qt::Checked);
    QVERIFY(in<QPushButton>("removeButton").isEnabled());
  }

  void findsThemBehindTheFilter() {
    demo().giveTables();
    openDemo();
    filter().setCurrentIndex(1);
    project().changeStringFilter();
    command(CommandId::RemoveUnused).trigger();
    QCOMPARE(in<QTableView>("unusedTable").model()->rowCount(), 2);
    click(in<QPushButton>("removeButton"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("1 missing"));
  }

  void saysThatEverythingIsUsed() {
    demo().giveTables();
    demo().write(QStringLiteral("App/More.m"), "NSLocalizedString(@\"Old\", nil);");
    openDemo();
    command(CommandId::RemoveUnused).trigger();
    QCOMPARE(in<QLabel>("unusedExplanation").text(),
             QStringLiteral("Every entry is used: there is nothing to remove."));
    QVERIFY(!in<QPushButton>("removeButton").isVisible());
  }

  void isOfferedOnlyWhereTheRulesKnowWhatIsUsed() {
    openDemo();
    QVERIFY(!isEnabled(CommandId::RemoveUnused));
  }

  void goesAwayWithItsProject() {
    openWindow();
    QVERIFY(project().closeProject());
    QVERIFY(!unused());
  }
};

static const TestRegistration<UnusedEntriesTest> kUnusedEntriesRegistration("UnusedEntries");

}  // namespace glossmill

#include "UnusedEntriesTest.moc"
