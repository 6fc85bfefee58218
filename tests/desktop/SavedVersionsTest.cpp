#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

/// German loses two entries with the first save.
class SavedVersionsTest : public DesktopFixture {
  Q_OBJECT

  const QString m_german = QStringLiteral("de.lproj/Localizable.strings");
  QByteArray m_before;

  void openLossy() {
    demo().write(m_german, demo().read(m_german) + "\"Nowhere\" = \"x\";\n\"Never\" = \"y\";\n");
    m_before = demo().read(m_german);
    openDemo();
  }
  /// But for the offer of other rules, which waits behind everything else.
  QString news() {
    QCoreApplication::processEvents();
    const QString text = widget<QWidget>("newsBar").isVisible() ? widget<QLabel>("newsText").text() : QString();
    return text.contains(QStringLiteral("Xcode's rules")) ? QString() : text;
  }
  QDialog* versions() {
    for (QWidget* each : QApplication::topLevelWidgets()) {
      if (each->objectName() == QLatin1String("SavedVersionsWindow") && each->isVisible()) {
        return qobject_cast<QDialog*>(each);
      }
    }
    return nullptr;
  }
  template <typename Widget>
  Widget& in(const char* name) {
    auto* found = versions()->findChild<Widget*>(QLatin1String(name));
    if (!found) qFatal("there is no widget %s", name);
    return *found;
  }
  void openVersions() {
    command(CommandId::SavedVersions).trigger();
    QVERIFY(versions());
    QVERIFY(QTest::qWaitForWindowActive(versions()));
  }
  void pressIn(Qt::Key key) { QTest::keyClick(versions()->windowHandle(), key); }
  QStringList row(const char* table, int number) {
    QStringList texts;
    const QTreeWidgetItem* item = in<QTreeWidget>(table).topLevelItem(number);
    for (int column = 0; column < item->columnCount(); ++column) texts.append(item->text(column));
    return texts;
  }

 private Q_SLOTS:
  void saysThatNothingIsKeptYet() {
    openDemo();
    openVersions();
    QVERIFY(in<QLabel>("noSaves").isVisible());
    QVERIFY(!in<QTreeWidget>("savesTable").isVisible());
    QVERIFY(!in<QPushButton>("restoreButton").isVisible());
    QTRY_VERIFY(in<QPushButton>("closeButton").hasFocus());
    pressIn(Qt::Key_Escape);
    QVERIFY(!versions());
  }

  void cannotBeOpenedWithoutAProject() {
    openDemo();
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!isEnabled(CommandId::SavedVersions));
  }

  void showsWhatASaveChangedInEachLanguage() {
    openLossy();
    QVERIFY(project().saveProject());
    openVersions();
    QCOMPARE(in<QTreeWidget>("savesTable").topLevelItemCount(), 1);
    QCOMPARE(row("savesTable", 0).mid(1),
             QStringList({QStringLiteral("Window"), QStringLiteral("3"), QStringLiteral("10"), QStringLiteral("8"),
                          QStringLiteral("2")}));
    QCOMPARE(row("savedFilesTable", 1),
             QStringList({QStringLiteral("de"), m_german, QStringLiteral("5"), QStringLiteral("3"), QStringLiteral("2"),
                          QStringLiteral("as this save wrote it")}));
  }

  void bringsBackAllFilesWithTheKeyboardAndReadsThemAnew() {
    openLossy();
    QVERIFY(project().saveProject());
    QVERIFY(demo().read(m_german) != m_before);
    openVersions();
    QTRY_VERIFY(in<QTreeWidget>("savesTable").hasFocus());
    pressIn(Qt::Key_Tab);
    QVERIFY(in<QTreeWidget>("savedFilesTable").hasFocus());
    pressIn(Qt::Key_Tab);
    QVERIFY(in<QPushButton>("restoreButton").hasFocus());
    pressIn(Qt::Key_Space);
    QVERIFY(!versions());
    waitForJob();
    QVERIFY(project().opened());
    QCOMPARE(demo().read(m_german), m_before);
    openVersions();
    QCOMPARE(in<QTreeWidget>("savesTable").topLevelItemCount(), 2);
    QVERIFY(row("savesTable", 0).at(1).startsWith(QStringLiteral("restore --from ")));
  }

  void bringsBackOnlyWhatIsChecked() {
    openLossy();
    const QByteArray english = demo().read(QStringLiteral("en.lproj/Localizable.strings"));
    QVERIFY(project().saveProject());
    openVersions();
    auto& files = in<QTreeWidget>("savedFilesTable");
    for (const int unwanted : {0, 1}) files.topLevelItem(unwanted)->setCheckState(0, Qt::Unchecked);
    QVERIFY(in<QPushButton>("restoreButton").isEnabled());
    click(in<QPushButton>("restoreButton"));
    waitForJob();
    QVERIFY(demo().read(m_german) != m_before);
    QCOMPARE(demo().read(QStringLiteral("en.lproj/Localizable.strings")), english);
  }

  void hasNothingToBringBackOnceNothingIsChecked() {
    openLossy();
    QVERIFY(project().saveProject());
    openVersions();
    auto& files = in<QTreeWidget>("savedFilesTable");
    for (int file = 0; file < files.topLevelItemCount(); ++file) {
      files.topLevelItem(file)->setCheckState(0, Qt::Unchecked);
    }
    QVERIFY(!in<QPushButton>("restoreButton").isEnabled());
  }

  void isReachedFromTheNewsOfALoss() {
    openLossy();
    QVERIFY(project().saveProject());
    QCOMPARE(news(), QStringLiteral("de: 5 entries before, 3 after, 2 not written again"));
    QVERIFY(isEnabled(CommandId::GoToMessage));
    press(Qt::Key_F6);
    press(Qt::Key_Return);
    QVERIFY(versions());
    QCOMPARE(news(), QString());
  }

  void goesAwayWithItsProject() {
    openLossy();
    openVersions();
    QVERIFY(project().closeProject());
    QVERIFY(!versions());
  }

  void tellsOfAFileThatAnotherProgramWritesAndKeepsEditsWhenItIsReadAnew() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Good night"));
    editor().setFocus();
    type(QStringLiteral("Gute Nacht"));
    demo().write(QStringLiteral("en.lproj/Localizable.strings"), "\"Open\" = \"Open it\";\n");
    QTRY_COMPARE_WITH_TIMEOUT(news(), QStringLiteral("en.lproj/Localizable.strings changed on disk"), 10000);
    QVERIFY(isEnabled(CommandId::GoToMessage));
    press(Qt::Key_F6);
    press(Qt::Key_Return);
    waitForJob();
    QCOMPARE(toQt(project().selectedString()->name()), QStringLiteral("Good night"));
    QCOMPARE(toQt(project().selectedLanguage()->iso639()), QStringLiteral("de"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Gute Nacht"));
    QVERIFY(project().hasUnsavedEdits());
    QCOMPARE(news(), QString());
    select(languages(), QStringLiteral("en"));
    select(strings(), QStringLiteral("Open"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Open it"));
  }

  void doesNotCountItsOwnSaves() {
    openDemo();
    QVERIFY(project().saveProject());
    demo().write(QStringLiteral("en.lproj/Localizable.strings"), "edited");
    QTRY_COMPARE_WITH_TIMEOUT(news(), QStringLiteral("en.lproj/Localizable.strings changed on disk"), 10000);
  }
};

static const TestRegistration<SavedVersionsTest> kSavedVersionsRegistration("SavedVersions");

}  // namespace glossmill

#include "SavedVersionsTest.moc"
