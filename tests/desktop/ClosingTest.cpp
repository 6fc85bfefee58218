#include <QFile>
#include <QFileDialog>
#include <QToolBar>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class ClosingTest : public DesktopFixture {
  Q_OBJECT

  const QString m_german = QStringLiteral("de.lproj/Localizable.strings");

  void openAndChange() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    select(strings(), QStringLiteral("Good night"));
    editor().setFocus();
    type(QStringLiteral("Gute Nacht"));
  }

 private Q_SLOTS:
  void closesAnUnchangedProjectWithoutAQuestion() {
    openDemo();
    QVERIFY(isEnabled(CommandId::Close));
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!project().opened());
    QCOMPARE(strings().model()->rowCount(), 0);
    QCOMPARE(languages().model()->rowCount(), 0);
    QCOMPARE(widget<QLabel>("stringCount").text(), QStringLiteral("Strings: 0"));
    QCOMPARE(editor().toPlainText(), QString());
    QVERIFY(!isEnabled(CommandId::Close));
    QVERIFY(!isEnabled(CommandId::Export));
  }

  void savesFirstWhenAskedTo() {
    openAndChange();
    answerAlert(QStringLiteral("Save"));
    press(Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(alerts(), QStringList({QStringLiteral("Translations not saved. Quit anyway?")}));
    QVERIFY(!project().opened());
    QVERIFY(demo().read(m_german).contains("Gute Nacht"));
  }

  void throwsTheEditsAwayWhenAskedTo() {
    openAndChange();
    const QByteArray before = demo().read(m_german);
    answerAlert(QStringLiteral("Delete"));
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!project().opened());
    QVERIFY(!window().isWindowModified());
    QCOMPARE(demo().read(m_german), before);
  }

  void staysOpenAfterCancel() {
    openAndChange();
    answerAlert(QStringLiteral("Cancel"));
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(project().opened());
    QVERIFY(window().isWindowModified());
    QCOMPARE(editor().toPlainText(), QStringLiteral("Gute Nacht"));
  }

  void hasTheKeyboardInTheEditorAgainAfterCancel() {
    openAndChange();
    answerAlert(QStringLiteral("Cancel"));
    press(Qt::Key_W, Qt::ControlModifier);
    waitForProjectWindow();
    QTRY_VERIFY(editor().hasFocus());
    type(QStringLiteral("!"));
    QCOMPARE(editor().toPlainText(), QStringLiteral("Gute Nacht!"));
  }

  void cancelsTheQuestionWithEscapeAndSavesWithReturn() {
    openAndChange();
    answerAlertWithKey(Qt::Key_Escape);
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(project().opened());
    waitForProjectWindow();
    answerAlertWithKey(Qt::Key_Return);
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!project().opened());
    QVERIFY(demo().read(m_german).contains("Gute Nacht"));
  }

  void staysOpenWhenALanguageCannotBeSaved() {
    openAndChange();
    QVERIFY(QFile::remove(demo().file(m_german)));
    demo().write(m_german + QStringLiteral("/in the way"), "");
    answerAlert(QStringLiteral("Save"));
    answerAlert(QStringLiteral("Overwrite"));
    answerAlert(QStringLiteral("Ok"));
    press(Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(alerts().last(), QStringLiteral("Error saving Localizable.strings for language German"));
    QVERIFY(project().opened());
    QVERIFY(!project().changed());
    QVERIFY(window().isWindowModified());
  }

  void asksBeforeAnotherProjectIsOpened() {
    openAndChange();
    answerAlert(QStringLiteral("Cancel"));
    program().panels().presetDirectory(FileUrl(fromQt(demo().directory())));
    command(CommandId::Open).trigger();
    program().panels().presetDirectory(std::nullopt);
    QVERIFY(project().opened());
    QCOMPARE(editor().toPlainText(), QStringLiteral("Gute Nacht"));
  }

  void tellsOfAFileThatWasCreated() {
    demo().write(QStringLiteral("fr.lproj/other"), "");
    openDemo();
    select(languages(), QStringLiteral("fr"));
    editor().setFocus();
    type(QStringLiteral("Ouvrir"));
    answerAlert(QStringLiteral("Ok"));
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(alerts().first().startsWith(QStringLiteral("Created new Localizable.strings for language French at:")));
    QVERIFY(demo().read(QStringLiteral("fr.lproj/Localizable.strings")).contains("\"Open\" = \"Ouvrir\""));
  }

  void savesFromTheToolBar() {
    openAndChange();
    QToolBar& bar = widget<QToolBar>("toolBar");
    QAction* save = bar.actions().at(1);
    QCOMPARE(save->text(), QStringLiteral("Save"));
    QVERIFY(save->isEnabled());
    click(*bar.widgetForAction(save));
    QVERIFY(demo().read(m_german).contains("Gute Nacht"));
    QTRY_VERIFY(!save->isEnabled());
  }

  void keepsEveryToolBarItemButSaveEnabled() {
    answerPanel([](QFileDialog& panel) { panel.reject(); });
    program().start(std::nullopt);
    for (const QAction* action : widget<QToolBar>("toolBar").actions()) {
      QCOMPARE(action->isEnabled(), action->text() != QLatin1String("Save"));
    }
    QVERIFY(!isEnabled(CommandId::Export));
  }
};

static const TestRegistration<ClosingTest> kClosingRegistration("Closing");

}  // namespace glossmill

#include "ClosingTest.moc"
