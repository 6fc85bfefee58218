#include <QFileDialog>
#include <QProgressBar>
#include <QToolButton>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class ImportingTest : public DesktopFixture {
  Q_OBJECT

  static void enterFile(QFileDialog& panel, const QString& file) {
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file);
    QTest::keyClick(&panel, Qt::Key_Return);
  }

  void importGerman(const QByteArray& text, const QString& name = QStringLiteral("in.txt")) {
    demo().write(name, text);
    answerPanel([this, name](QFileDialog& panel) {
      QCOMPARE(panel.windowTitle(), QStringLiteral("Select file"));
      QVERIFY(panel.nameFilters().first().contains(QStringLiteral("*.txt *.rtf *.TXT *.RTF")));
      enterFile(panel, demo().file(name));
    });
    press(Qt::Key_I, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
  }

 private Q_SLOTS:
  void importsATranslatedFile() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Good night"));
    importGerman("\n--- 4 ---\n/* */\nGood night\nGute Nacht\n\n");
    waitForJob();
    QCOMPARE(cell(strings(), QStringLiteral("Good night"), 1), QStringLiteral("Gute Nacht"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Gute Nacht"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("1 missing"));
    QVERIFY(!project().changed());
    QVERIFY(window().isWindowModified());
  }

  void importsAFileOfAnotherKindAsOneStep() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    importGerman("msgid \"Good night\"\nmsgstr \"Gute Nacht\"\n\nmsgid \"Open\"\nmsgstr \"Öffnen\"\n",
                 QStringLiteral("in.po"));
    waitForJob();
    QCOMPARE(cell(strings(), QStringLiteral("Good night"), 1), QStringLiteral("Gute Nacht"));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 1), QStringLiteral("Öffnen"));
    project().undo();
    QCOMPARE(cell(strings(), QStringLiteral("Good night"), 1), QString());
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 1), QStringLiteral("Auf"));
  }

  void tellsWhatIsWrongWithAFileOfAnotherKindAndTakesNothing() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    answerAlert(QStringLiteral("Ok"));
    importGerman("msgid \"Open\"\nmsgstr \"Öffnen\"\nmsgid \"Good night\nmsgstr \"x\"\n", QStringLiteral("in.po"));
    waitForJob();
    QCOMPARE(alerts(), QStringList({QStringLiteral("The file could not be imported")}));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 1), QStringLiteral("Auf"));
  }

  void findsWhatWasImported() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    search().setText(QStringLiteral("nacht"));
    QCOMPARE(strings().model()->rowCount(), 0);
    search().clear();
    importGerman("\n--- 4 ---\n/* */\nGood night\nGute Nacht\n\n");
    waitForJob();
    search().setText(QStringLiteral("nacht"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good night")}));
  }

  void findsWhatWasImportedWhileASearchStands() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    search().setText(QStringLiteral("nacht"));
    importGerman("\n--- 4 ---\n/* */\nGood night\nGute Nacht\n\n");
    waitForJob();
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good night")}));
  }

  void importsNothingWhenTheFilePanelIsCancelled() {
    openDemo();
    answerPanel([](QFileDialog& panel) { panel.reject(); });
    press(Qt::Key_I, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QVERIFY(!project().longJobRunning());
    QVERIFY(!isSheetUp());
  }

  void offersNoNewDirectoryInTheFilePanel() {
    openDemo();
    bool offersOne = true;
    answerPanel([&offersOne](QFileDialog& panel) {
      offersOne = panel.findChild<QToolButton*>(QStringLiteral("newFolderButton"))->isEnabled();
      panel.reject();
    });
    press(Qt::Key_I, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QVERIFY(!offersOne);
  }

  void showsTheRightRowsAfterACancelledImport() {
    demo().growBy(20000);
    QByteArray text = "\n";
    for (int number = 0; number < 20000; ++number) {
      text += QStringLiteral("--- 1 ---\n/* */\nstring %1\nText %1\n\n").arg(number).toUtf8();
    }
    openDemo();
    select(languages(), QStringLiteral("de"));
    search().setText(QStringLiteral("text 0"));
    QCOMPARE(strings().model()->rowCount(), 0);
    search().clear();
    importGerman(text);
    QVERIFY(waitBriefly([this] { return project().stringList()[5]->languagesDict().contains(LanguageCode("de")); }));
    click(inSheet<QPushButton>("cancelButton"));
    waitForJob();
    QVERIFY(!isSheetUp());
    QCOMPARE(cell(strings(), QStringLiteral("string 0"), 1), QStringLiteral("Text 0"));
    QCOMPARE(cell(strings(), QStringLiteral("string 19999"), 1), QString());
    search().setText(QStringLiteral("text 0"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("string 0")}));
    worksLikeBefore();
  }

  void fillsABaseLanguage() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Good night"));
    press(Qt::Key_B, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    waitForJob();
    QCOMPARE(cell(strings(), QStringLiteral("Good night"), 1), QStringLiteral("Good night"));
    QCOMPARE(cell(strings(), QStringLiteral("Open"), 1), QStringLiteral("Auf"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Good night"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("Complete"));
    QVERIFY(window().isWindowModified());
    QVERIFY(isEnabled(CommandId::Save));
  }

  void cancelsABaseLanguage() {
    demo().growBy(20000);
    openDemo();
    select(languages(), QStringLiteral("de"));
    project().languageFromBaseLanguage(project().selectedLanguage());
    QVERIFY(waitBriefly([this] { return project().stringList()[5]->languagesDict().contains(LanguageCode("de")); }));
    click(inSheet<QPushButton>("cancelButton"));
    waitForJob();
    QVERIFY(!isSheetUp());
    QCOMPARE(cell(strings(), QStringLiteral("string 0"), 1), QStringLiteral("string 0"));
    QCOMPARE(cell(strings(), QStringLiteral("string 19999"), 1), QString());
    QVERIFY(window().isWindowModified());
  }

 private:
  /// Everything that a person does with the table still shows.
  void worksLikeBefore() {
    search().setText(QStringLiteral("greeting"));
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Good morning"), QStringLiteral("Good night")}));
    search().clear();
    select(strings(), QStringLiteral("Good night"));
    editor().setFocus();
    type(QStringLiteral("x"));
    QCOMPARE(cell(strings(), QStringLiteral("Good night"), 1), QStringLiteral("x"));
    filter().setFocus();
    press(Qt::Key_Down);
    QTRY_VERIFY(!firstColumn(strings()).contains(QStringLiteral("Open")));
    QTRY_COMPARE(cell(strings(), QStringLiteral("Good night"), 1), QStringLiteral("x"));
  }
};

static const TestRegistration<ImportingTest> kImportingRegistration("Importing");

}  // namespace glossmill

#include "ImportingTest.moc"
