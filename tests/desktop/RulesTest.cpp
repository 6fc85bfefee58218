#include <QFileDialog>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

/// What the window does with a project whose own file asks for xcode's rules.
class RulesTest : public DesktopFixture {
  Q_OBJECT

 private Q_SLOTS:
  void readsAProjectByTheRulesOfItsFile() {
    openByXcode();
    QCOMPARE(firstColumn(strings()), QStringList({QStringLiteral("Two\u21B5lines"), QStringLiteral("Say \"yes\"")}));
    QCOMPARE(firstColumn(languages()), QStringList({QStringLiteral("de"), QStringLiteral("en")}));
    QCOMPARE(project().projectOptions().rules, RuleSet::Xcode);
  }

  void showsAndTakesTextsAsTheyAre() {
    openByXcode();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Say \"yes\""));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Sag \"ja\""));
    select(strings(), QStringLiteral("Two\u21B5lines"));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Zwei\n\"Zeilen\""));
    QVERIFY(window().isWindowModified());
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(alerts(), QStringList());
    QCOMPARE(demo().read(QStringLiteral("App/de.lproj/Localizable.strings")),
             QByteArray("/* Kopf */\n\"Say \\\"yes\\\"\" = \"Sag \\\"ja\\\"\"; // bleibt\n\n"
                        "/* No comment provided by engineer. */\n\"Two\\nlines\" = \"Zwei\\n\\\"Zeilen\\\"\";\n"));
    QVERIFY(!window().isWindowModified());
  }

  void writesNothingThatNobodyEdited() {
    openByXcode();
    const QByteArray before = demo().read(QStringLiteral("App/de.lproj/Localizable.strings"));
    QVERIFY(project().saveProject());
    QCOMPARE(demo().read(QStringLiteral("App/de.lproj/Localizable.strings")), before);
  }

  void asksAboutATextThatReplacesAnother() {
    openByXcode();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Say \"yes\""));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Sag ja"));
    answerAlert(QStringLiteral("Cancel"));
    project().closeProject();
    QCOMPARE(alerts().size(), 1);
    QVERIFY(project().opened());
  }

  void saysWhatIsWrongWithTheFileAndReadsNothing() {
    demo().write(QStringLiteral(".glossmill.json"), "{\n\"rules\": \"other\"}");
    answerAlert(QStringLiteral("Ok"));
    startWith(demo().directory());
    QVERIFY(alerts().value(0).contains(QStringLiteral(".glossmill.json, line 2")));
    QVERIFY(!project().opened());
    QVERIFY(!project().longJobRunning());
  }

  void isChangedInTheMenuAndRemembered() {
    writeProject();
    openDemo();
    QVERIFY(command(CommandId::UseClassicRules).isChecked());
    QCOMPARE(strings().model()->rowCount(), 0);
    command(CommandId::UseXcodeRules).trigger();
    waitForJob();
    QCOMPARE(strings().model()->rowCount(), 2);
    QVERIFY(isEnabled(CommandId::UseXcodeRules));
    QVERIFY(command(CommandId::UseXcodeRules).isChecked());
    QVERIFY(!command(CommandId::UseClassicRules).isChecked());
    startAnew();
    openDemo();
    QCOMPARE(project().projectOptions().rules, RuleSet::Xcode);
    QCOMPARE(strings().model()->rowCount(), 2);
  }

  void isWrittenToTheFileOfAProjectThatHasOne() {
    openByXcode();
    command(CommandId::UseClassicRules).trigger();
    waitForJob();
    QCOMPARE(project().projectOptions().rules, RuleSet::Classic);
    QCOMPARE(demo().read(QStringLiteral(".glossmill.json")), QByteArray(R"({"rules": "classic"})"));
    startAnew();
    openDemo();
    QCOMPARE(project().projectOptions().rules, RuleSet::Classic);
  }

  void thatAreTypedComeFirstUntilOthersAreChosen() {
    openByXcode();
    startAnew();
    program().start(FileUrl(fromQt(demo().directory())), RuleSet::Classic);
    waitForJob();
    QCOMPARE(project().projectOptions().rules, RuleSet::Classic);
    QVERIFY(project().reloadProject());
    waitForJob();
    QCOMPARE(project().projectOptions().rules, RuleSet::Classic);
    command(CommandId::UseXcodeRules).trigger();
    waitForJob();
    QCOMPARE(project().projectOptions().rules, RuleSet::Xcode);
  }

  void isOfferedInTheBar() {
    writeProject();
    openDemo();
    QVERIFY(widget<QWidget>("newsBar").isVisible());
    QCOMPARE(widget<QLabel>("newsText").text(),
             QStringLiteral("7 entries match no call. Xcode's rules may read more of this project."));
    QVERIFY(isEnabled(CommandId::GoToMessage));
    press(Qt::Key_F6);
    press(Qt::Key_Return);
    waitForJob();
    QCOMPARE(project().projectOptions().rules, RuleSet::Xcode);
    QVERIFY(!widget<QWidget>("newsBar").isVisible());
  }

  void opensAPackageAsItsDirectoryWithThatPackage() {
    openByXcode();
    demo().write(QStringLiteral("Other.xcodeproj/project.pbxproj"), DemoProject::folderProjectFile());
    startAnew();
    const QString package = demo().file(QStringLiteral("Demo.xcodeproj"));
    startWith(package);
    waitForJob();
    QCOMPARE(toQt(project().projectDirectory().path()), demo().directory());
    QCOMPARE(project().packages().size(), std::size_t{1});
    QCOMPARE(strings().model()->rowCount(), 2);
    QCOMPARE(toQt(program().delegate().recentArray().front()), package);
    QVERIFY(project().reloadProject());
    waitForJob();
    QCOMPARE(project().packages().size(), std::size_t{1});
    command(CommandId::UseClassicRules).trigger();
    waitForJob();
    QCOMPARE(toQt(project().projectDirectory().path()), demo().directory());
    QVERIFY(project().projectPackage());
  }

  void leavesNothingToRecoverOfWhatWasSaved() {
    openByXcode();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Two\u21B5lines"));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Zwei"));
    project().flushEdits();
    startAnew();
    openDemo();
    QCOMPARE(project().recoverableEdits().size(), std::size_t{1});
    click(*widget<QWidget>("newsBar").findChild<QPushButton*>());
    QCOMPARE(editor().toPlainText(), QStringLiteral("Zwei"));
    QVERIFY(project().saveProject());
    startAnew();
    openDemo();
    QCOMPARE(project().recoverableEdits().size(), std::size_t{0});
    QVERIFY(!widget<QWidget>("newsBar").isVisible());
  }

  void asksWhereTheFilesOfANewTableGo() {
    writeProject();
    demo().write(QStringLiteral(".glossmill.json"), R"({"rules": "xcode"})");
    demo().write(QStringLiteral("App/Sail.m"), "NSLocalizedStringFromTable(@\"Jib\", @\"Sails\", nil);");
    openDemo();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Jib"));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Fock"));
    QString title;
    answerPanel([&](QFileDialog& panel) {
      title = panel.windowTitle();
      panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(demo().file(QStringLiteral("App")));
      QTest::keyClick(&panel, Qt::Key_Return);
    });
    answerAlert(QStringLiteral("Ok"));
    QVERIFY(project().saveProject());
    QCOMPARE(title, QStringLiteral("Choose the directory for the files of the table Sails"));
    QCOMPARE(demo().read(QStringLiteral("App/de.lproj/Sails.strings")), QByteArray("\"Jib\" = \"Fock\";\n"));
    QVERIFY(alerts().value(0).startsWith(QStringLiteral("Created a new Sails.strings for language German at:")));
    QVERIFY(alerts().value(0).contains(QStringLiteral("Add it to the project in Xcode")));
    QVERIFY(!window().isWindowModified());
  }

  void keepsTheEditsOfATableThatGetsNoDirectory() {
    writeProject();
    demo().write(QStringLiteral(".glossmill.json"), R"({"rules": "xcode"})");
    demo().write(QStringLiteral("App/Sail.m"), "NSLocalizedStringFromTable(@\"Jib\", @\"Sails\", nil);");
    openDemo();
    select(strings(), QStringLiteral("Jib"));
    editor().setFocus();
    editor().setPlainText(QStringLiteral("Fock"));
    answerPanel([](QFileDialog& panel) { panel.reject(); });
    answerAlert(QStringLiteral("Ok"));
    QVERIFY(!project().saveProject());
    QCOMPARE(alerts(), QStringList{QStringLiteral("The table Sails was not saved")});
    QVERIFY(window().isWindowModified());
  }

 private:
  void openByXcode() {
    demo().write(QStringLiteral(".glossmill.json"), R"({"rules": "xcode"})");
    writeProject();
    openDemo();
  }

  void writeProject() {
    demo().write(QStringLiteral("Demo.xcodeproj/project.pbxproj"), DemoProject::folderProjectFile());
    demo().write(QStringLiteral("App/Deck.m"),
                 "NSLocalizedString(@\"Two\\nlines\", nil); NSLocalizedString(@\"Say \\\"yes\\\"\", nil);");
    demo().write(QStringLiteral("App/en.lproj/Localizable.strings"),
                 "\"Say \\\"yes\\\"\" = \"Say \\\"yes\\\"\";\n\"Two\\nlines\" = \"Two\\nlines\";\n");
    demo().write(QStringLiteral("App/de.lproj/Localizable.strings"),
                 "/* Kopf */\n\"Say \\\"yes\\\"\" = \"Sag \\\"ja\\\"\"; // bleibt\n");
  }
};

static const TestRegistration<RulesTest> kRulesRegistration("Rules");

}  // namespace glossmill

#include "RulesTest.moc"
