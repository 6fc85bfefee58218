#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class UndoTest : public DesktopFixture {
  Q_OBJECT

  QString stored(const QString& key, const char* code) {
    for (const auto& record : project().stringList()) {
      if (toQt(record->name()) == key) return toQt(record->languagesDict().find(LanguageCode(code)).value_or("(none)"));
    }
    return QStringLiteral("(no such string)");
  }

  void edit(const QString& key, const QString& code) {
    select(languages(), code);
    select(strings(), key);
    editor().setFocus();
  }

  void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
  void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

  QString titleOf(CommandId id) {
    QCoreApplication::processEvents();
    return command(id).text().remove(QLatin1Char('&'));
  }

 private Q_SLOTS:
  void takesBackTheTextOfThisVisitFirstAndThenGoesOn() {
    openDemo();
    edit(QStringLiteral("Open"), QStringLiteral("de"));
    press(Qt::Key_End);
    type(QStringLiteral("!"));
    press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(stored(QStringLiteral("Close"), "de"), QStringLiteral("Zu"));
    press(Qt::Key_End);
    type(QStringLiteral("?"));
    undo();
    QCOMPARE(stored(QStringLiteral("Close"), "de"), QStringLiteral("Zu"));
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf!"));
    undo();
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf"));
    QCOMPARE(toQt(project().selectedString()->name()), QStringLiteral("Open"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Auf"));
    QVERIFY(!isEnabled(CommandId::Undo));
    redo();
    redo();
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf!"));
    QCOMPARE(stored(QStringLiteral("Close"), "de"), QStringLiteral("Zu?"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Zu?"));
    QVERIFY(!isEnabled(CommandId::Redo));
  }

  void makesAgainInTheEditorWhatItHasTakenBack() {
    openDemo();
    edit(QStringLiteral("Open"), QStringLiteral("de"));
    press(Qt::Key_End);
    type(QStringLiteral("!"));
    undo();
    redo();
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf!"));
    QVERIFY(!isEnabled(CommandId::Redo));
  }

  void takesBackFromTheTable() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("Gute"));
    strings().setFocus();
    undo();
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("(none)"));
    QCOMPARE(editor().toPlainText(), QString());
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("2 missing"));
  }

  /// What the editor kept of that visit would be applied to another text.
  void forgetsTheStepsOfTheTextOnceItWasTakenBackOtherwise() {
    openDemo();
    project().languageFromBaseLanguage(project().languagesList()->front());
    waitForJob();
    edit(QStringLiteral("Open"), QStringLiteral("de"));
    press(Qt::Key_End);
    type(QStringLiteral("!"));
    undo();
    undo();
    QCOMPARE(stored(QStringLiteral("Close"), "ar"), QStringLiteral("(none)"));
    editor().setFocus();
    redo();
    QCOMPARE(stored(QStringLiteral("Close"), "ar"), QStringLiteral("Close"));
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf"));
    redo();
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf!"));
  }

  void leavesTheProjectAloneInTheSearchField() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("Gute"));
    search().setFocus();
    type(QStringLiteral("o"));
    undo();
    QCOMPARE(search().text(), QString());
    undo();
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("Gute"));
    QVERIFY(!isEnabled(CommandId::Undo));
  }

  void namesTheStepInTheMenu() {
    openDemo();
    QCOMPARE(titleOf(CommandId::Undo), QStringLiteral("Undo"));
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("G"));
    QCOMPARE(titleOf(CommandId::Undo), QStringLiteral("Undo Typing"));
    project().languageFromBaseLanguage(project().languagesList()->at(1));
    waitForJob();
    QCOMPARE(titleOf(CommandId::Undo), QStringLiteral("Undo Filling of German"));
    project().undo();
    QCOMPARE(titleOf(CommandId::Redo), QStringLiteral("Redo Filling of German"));
  }

  void namesAnImportInTheLanguageOfTheUser() {
    startAnew(QStringLiteral("de"));
    openDemo();
    demo().write(QStringLiteral("in.txt"), "--- 1 ---\n/*  */\nGood night\nGute Nacht\n\n");
    project().importLanguageFromFile(project().languagesList()->at(1),
                                     FileUrl(fromQt(demo().file(QStringLiteral("in.txt")))));
    waitForJob();
    QCOMPARE(titleOf(CommandId::Undo), QStringLiteral("Rückgängig: Import von German"));
  }

  void doesNothingWhileASheetIsUp() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("Gute"));
    project().addLanguage();
    undo();
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("Gute"));
    QVERIFY(!isEnabled(CommandId::Undo));
    press(Qt::Key_Escape);
  }
};

static const TestRegistration<UndoTest> kUndoRegistration("Undo");

}  // namespace glossmill

#include "UndoTest.moc"
