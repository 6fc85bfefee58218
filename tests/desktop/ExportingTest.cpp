#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QProgressBar>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class ExportingTest : public DesktopFixture {
  Q_OBJECT

  QTableView& chooser() { return inSheet<QTableView>("tableView"); }

  static void enterFile(QFileDialog& panel, const QString& file) {
    panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file);
    QTest::keyClick(&panel, Qt::Key_Return);
  }

  /// The save panel belongs to the window and does not stop the program; it is found when it is up.
  static QFileDialog& savePanel() {
    QFileDialog* panel = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* candidate = qobject_cast<QFileDialog*>(widget);
      if (candidate && candidate->isVisible()) panel = candidate;
    }
    if (!panel) qFatal("there is no save panel");
    return *panel;
  }

  void exportGerman(bool untranslatedOnly, const QString& file) {
    press(Qt::Key_E, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(chooser().currentIndex().data().toString(), QStringLiteral("de"));
    if (untranslatedOnly) {
      inSheet<QCheckBox>("checkButton").setFocus();
      press(Qt::Key_Space);
    }
    press(Qt::Key_Return);
    QVERIFY(!isSheetUp());
    QCOMPARE(QFileInfo(savePanel().selectedFiles().value(0)).fileName(), QStringLiteral("Demo_de.txt"));
    QCOMPARE(savePanel().acceptMode(), QFileDialog::AcceptSave);
    QCOMPARE(savePanel().windowModality(), Qt::WindowModal);
    QCOMPARE(savePanel().parentWidget(), &window());
    enterFile(savePanel(), file);
    waitForJob();
  }

 private Q_SLOTS:
  void exportsAllStrings() {
    openDemo();
    const QString file = demo().file(QStringLiteral("out.txt"));
    exportGerman(false, file);
    const QByteArray text = demo().read(QStringLiteral("out.txt"));
    QVERIFY(text.startsWith("\n--- 1 ---\n/* Button */\nOpen\nAuf\n\n"));
    QVERIFY(text.contains("--- 4 ---\n/* Greeting of the evening */\nGood night\n\n\n"));
    QVERIFY(!isSheetUp());
    QVERIFY(!window().isWindowModified());
  }

  void exportsOnlyUntranslatedStringsWithTheCheckBoxOn() {
    openDemo();
    exportGerman(true, demo().file(QStringLiteral("out.txt")));
    const QByteArray text = demo().read(QStringLiteral("out.txt"));
    QVERIFY(text.startsWith("\n--- 4 ---\n"));
    QVERIFY(!text.contains("Auf"));
  }

  void writesTheKindOfFileThatIsChosen() {
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    auto* types = savePanel().findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    QVERIFY(types->isVisible());
    QCOMPARE(types->currentText(), QStringLiteral("Text files (*.txt)"));
    const int xliff = types->findText(QStringLiteral("XLIFF 1.2 (*.xliff *.xlf)"));
    QVERIFY(xliff > 0);
    types->setFocus();
    types->setCurrentIndex(xliff);
    Q_EMIT types->textActivated(types->currentText());
    QCOMPARE(QFileInfo(savePanel().selectedFiles().value(0)).fileName(), QStringLiteral("Demo_de.xliff"));
    enterFile(savePanel(), demo().file(QStringLiteral("out.xliff")));
    waitForJob();
    QVERIFY(demo().read(QStringLiteral("out.xliff")).contains("<target>Auf</target>"));
  }

  void writesNothingWhenTheSavePanelIsCancelled() {
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    savePanel().reject();
    QVERIFY(!project().longJobRunning());
    QVERIFY(isEnabled(CommandId::Export));
  }

  void writesNothingWhenTheChooserIsCancelled() {
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(isSheetUp());
    press(Qt::Key_Escape);
    QVERIFY(!isSheetUp());
    QVERIFY(!project().longJobRunning());
  }

  void ignoresReturnWhileNothingIsSelected() {
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    press(Qt::Key_Return);
    QVERIFY(isSheetUp());
    click(inSheet<QPushButton>("doneButton"));
    QVERIFY(isSheetUp());
    press(Qt::Key_Escape);
  }

  void choosesWithADoubleClick() {
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    const QRect row = chooser().visualRect(chooser().model()->index(1, 0));
    QTest::mouseClick(chooser().viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QTest::mouseDClick(chooser().viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QVERIFY(!isSheetUp());
    QCOMPARE(QFileInfo(savePanel().selectedFiles().value(0)).fileName(), QStringLiteral("Demo_de.txt"));
    savePanel().reject();
  }

  void tellsWhenTheExportCannotBeWritten() {
    openDemo();
    demo().write(QStringLiteral("taken/x"), "");
    answerAlert(QStringLiteral("Ok"));
    project().exportLanguageToFileAllStrings(
        project().selectedLanguage(), FileUrl(fromQt(demo().file(QStringLiteral("taken")))), ExportScope::AllStrings);
    waitForJob();
    QCOMPARE(alerts(), QStringList({QStringLiteral("Error saving export file for language Arabic")}));
  }

  void cancelsAnExport() {
    demo().growBy(20000);
    openDemo();
    const QString file = demo().file(QStringLiteral("out.txt"));
    project().exportLanguageToFileAllStrings(project().selectedLanguage(), FileUrl(fromQt(file)),
                                             ExportScope::AllStrings);
    QCOMPARE(inSheet<QLabel>("longTimeSheetTitle").text(), QStringLiteral("Exporting strings..."));
    click(inSheet<QPushButton>("cancelButton"));
    waitForJob();
    QVERIFY(!isSheetUp());
    QVERIFY(!QFile::exists(file));
  }

  void movesTheBar() {
    demo().growBy(100000);
    openDemo();
    project().exportLanguageToFileAllStrings(
        project().selectedLanguage(), FileUrl(fromQt(demo().file(QStringLiteral("out.txt")))), ExportScope::AllStrings);
    const auto& bar = inSheet<QProgressBar>("longTimeIndicator");
    QVERIFY(waitBriefly([&bar] { return bar.value() > 0; }));
    const int first = bar.value();
    QVERIFY(first < bar.maximum());
    QVERIFY(waitBriefly([&bar, first] { return bar.value() > first; }));
    waitForJob();
  }

  void offersTheLanguagesOfTheFirstProjectAgain() {
    openDemo();
    press(Qt::Key_E, Qt::ControlModifier);
    press(Qt::Key_Escape);
    demo().write(QStringLiteral("Other/x.xcodeproj/project.pbxproj"), "");
    demo().write(QStringLiteral("Other/fr.lproj/Localizable.strings"), "");
    program().panels().presetDirectory(FileUrl(fromQt(demo().file(QStringLiteral("Other")))));
    program().delegate().open();
    waitForJob();
    press(Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(firstColumn(chooser()), QStringList({QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("en")}));
    press(Qt::Key_Escape);
  }
};

static const TestRegistration<ExportingTest> kExportingRegistration("Exporting");

}  // namespace glossmill

#include "ExportingTest.moc"
