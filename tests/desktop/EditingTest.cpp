#include <QClipboard>
#include <QFile>
#include <QTextOption>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class EditingTest : public DesktopFixture {
  Q_OBJECT

  QString stored(const QString& key, const char* code) {
    for (const auto& record : project().stringList()) {
      if (toQt(record->name()) == key) return toQt(record->languagesDict().find(LanguageCode(code)).value_or("(none)"));
    }
    return QStringLiteral("(no such string)");
  }

  /// Puts a text that no keyboard types into the editor, the way a person would.
  void paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
  }

  void edit(const QString& key, const QString& code) {
    select(languages(), code);
    select(strings(), key);
    editor().setFocus();
  }

 private Q_SLOTS:
  void storesEachKeyAtOnce() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("Gu"));
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("Gu"));
    QCOMPARE(cell(strings(), QStringLiteral("Good night"), 1), QStringLiteral("Gu"));
  }

  void marksTheWindowWhenATranslationIsAdded() {
    openDemo();
    QVERIFY(!isEnabled(CommandId::Save));
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("G"));
    QVERIFY(window().isWindowModified());
    QVERIFY(isEnabled(CommandId::Save));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("1 missing"));
    QCOMPARE(cell(strings(), QStringLiteral("Good night"), 5), QStringLiteral("1 missing"));
  }

  void marksTheWindowButCountsNoChangeWhenOneTextReplacesAnother() {
    openDemo();
    edit(QStringLiteral("Open"), QStringLiteral("de"));
    press(Qt::Key_End);
    type(QStringLiteral("!"));
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf!"));
    QVERIFY(window().isWindowModified());
    QVERIFY(!project().changed());
    QVERIFY(!isEnabled(CommandId::Save));
  }

  void removesTheEntryWhenTheTextIsEmptied() {
    openDemo();
    edit(QStringLiteral("Open"), QStringLiteral("de"));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("(none)"));
    QVERIFY(window().isWindowModified());
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("3 missing"));
  }

  void storesLineBreaksAsLineFeeds() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("a"));
    press(Qt::Key_Return);
    type(QStringLiteral("b"));
    press(Qt::Key_Return, Qt::ShiftModifier);
    type(QStringLiteral("c"));
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("a\nb\nc"));
  }

  void keepsSpacesThatDoNotBreak() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    paste(QStringLiteral("10\u00A0km"));
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("10\u00A0km"));
  }

  void keepsCharactersThatAnEditorTakesForLineBreaks() {
    const QByteArray odd = "\xE2\x80\xA8 \xE2\x80\xA9 \xEF\xB7\x90";
    demo().write(QStringLiteral("de.lproj/Localizable.strings"), "\"Open\" = \"" + odd + "\";\n");
    openDemo();
    edit(QStringLiteral("Open"), QStringLiteral("de"));
    press(Qt::Key_End);
    type(QStringLiteral("x"));
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QString::fromUtf8(odd) + QLatin1Char('x'));
  }

  void copiesTheTextAsItIsStored() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    paste(QStringLiteral("a\nb\u00A0c"));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("a\nb\u00A0c"));
  }

  void reportsHalfASurrogatePairWhenSaving() {
    openDemo();
    const QByteArray before = demo().read(QStringLiteral("de.lproj/Localizable.strings"));
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    paste(QStringLiteral("a") + QChar(0xD83D));
    QVERIFY(window().isWindowModified());
    answerAlert(QStringLiteral("Ok"));
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(alerts(), QStringList({QStringLiteral("Error saving Localizable.strings for language German")}));
    QCOMPARE(demo().read(QStringLiteral("de.lproj/Localizable.strings")), before);
  }

  void showsTheTranslationOfTheLanguageThatIsChosen() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Auf"));
    QCOMPARE(widget<QLabel>("editorLabel").text(), QStringLiteral("Translation: German"));
    QCOMPARE(cell(strings(), QStringLiteral("Close"), 1), QStringLiteral("Zu"));
    select(languages(), QStringLiteral("en"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Open"));
  }

  void keepsAnEmptyEntryThatIsOnlyShown() {
    demo().write(QStringLiteral("ar.lproj/Localizable.strings"), "\"Open\" = \"\";\n");
    openDemo();
    for (const char* code : {"de", "ar"}) select(languages(), QLatin1String(code));
    QCOMPARE(stored(QStringLiteral("Open"), "ar"), QString());
    QCOMPARE(cell(languages(), QStringLiteral("ar"), 2), QStringLiteral("4 missing"));
    QVERIFY(!window().isWindowModified());
  }

  void writesInTheDirectionOfTheLanguage() {
    openDemo();
    select(languages(), QStringLiteral("ar"));
    QCOMPARE(editor().document()->defaultTextOption().textDirection(), Qt::RightToLeft);
    const QModelIndex translation = strings().model()->index(0, 1);
    QVERIFY(translation.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    select(languages(), QStringLiteral("de"));
    QCOMPARE(editor().document()->defaultTextOption().textDirection(), Qt::LeftToRight);
    QVERIFY(translation.data(Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
  }

  void showsTheLineBreaksOfAKey() {
    openDemo();
    select(strings(), QStringLiteral("First line\u21B5second line"));
    QCOMPARE(widget<QPlainTextEdit>("keyText").toPlainText(), QStringLiteral("First line\u21B5\nsecond line"));
  }

  void cannotEditWhileNothingIsSelected() {
    openDemo();
    project().stringController().clearSelection();
    QVERIFY(!editor().isEnabled());
    QCOMPARE(editor().toPlainText(), QString());
  }

  void savesWithTheKeyboardWhatWasTyped() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("Gute Nacht"));
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(demo()
                .read(QStringLiteral("de.lproj/Localizable.strings"))
                .contains("/* Greeting of the evening */\n\"Good night\" = \"Gute Nacht\"\n\n"));
    QVERIFY(!window().isWindowModified());
    QVERIFY(!isEnabled(CommandId::Save));
    QVERIFY(alerts().isEmpty());
  }

  void findsTheEditsAfterSavingAndOpeningAgain() {
    openDemo();
    edit(QStringLiteral("Good night"), QStringLiteral("de"));
    type(QStringLiteral("Gute Nacht"));
    press(Qt::Key_S, Qt::ControlModifier);
    program().panels().presetDirectory(FileUrl(fromQt(demo().directory())));
    program().delegate().open();
    waitForJob();
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("Gute Nacht"));
  }
};

static const TestRegistration<EditingTest> kEditingRegistration("Editing");

}  // namespace glossmill

#include "EditingTest.moc"
