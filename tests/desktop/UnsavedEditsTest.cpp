#include <QFile>
#include <QLabel>
#include <QTreeWidget>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class UnsavedEditsTest : public DesktopFixture {
  Q_OBJECT

  QString stored(const QString& key, const char* code) {
    for (const auto& record : project().stringList()) {
      if (toQt(record->name()) == key) return toQt(record->languagesDict().find(LanguageCode(code)).value_or("(none)"));
    }
    return QStringLiteral("(no such string)");
  }

  void edit(const QString& key, const QString& text) {
    select(languages(), QStringLiteral("de"));
    select(strings(), key);
    editor().setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
  }

  /// Types two texts, and ends as a signal ends the program; then opens the project again.
  void crash() {
    openDemo();
    edit(QStringLiteral("Open"), QStringLiteral("Offen"));
    edit(QStringLiteral("Good night"), QStringLiteral("Gute Nacht"));
    program().quitPath().endAtOnce(143);
    startAnew();
  }
  void crashAndOpenAgain() {
    crash();
    openDemo();
  }

  QString news() {
    QLabel& text = widget<QLabel>("newsText");
    return text.isVisible() ? text.text() : QString();
  }
  void clickNews(const QString& title) {
    for (QPushButton* button : widget<QWidget>("newsBar").findChildren<QPushButton*>()) {
      if (button->isVisible() && button->text() == title) return click(*button);
    }
    QFAIL(qPrintable(QStringLiteral("the bar has no button ") + title));
  }
  QDialog* list() { return window().findChild<QDialog*>(QStringLiteral("UnsavedEditsWindow")); }
  QTreeWidget& rows() { return *list()->findChild<QTreeWidget*>(QStringLiteral("unsavedEditsTable")); }
  void clickInList(const char* button) { click(*list()->findChild<QPushButton*>(QLatin1String(button))); }

 private Q_SLOTS:
  void offersWhatAFormerSessionLeftAndAppliesIt() {
    crashAndOpenAgain();
    QVERIFY2(news().startsWith(QLatin1String("2 edits from ")) && news().endsWith(QLatin1String(" were never saved")),
             qPrintable(news()));
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf"));
    clickNews(QStringLiteral("Apply"));
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Offen"));
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("Gute Nacht"));
    QCOMPARE(news(), QString());
    QVERIFY(project().changed());
    QVERIFY(window().isWindowModified());
  }

  void forgetsWhatIsDiscarded() {
    crashAndOpenAgain();
    clickNews(QStringLiteral("Discard"));
    QCOMPARE(news(), QString());
    startAnew();
    openDemo();
    QCOMPARE(news(), QString());
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf"));
  }

  void keepsWhatNobodyDecidedAbout() {
    crashAndOpenAgain();
    startAnew();
    openDemo();
    QVERIFY(news().startsWith(QLatin1String("2 edits from ")));
  }

  void appliesNoConflictUnasked() {
    crash();
    demo().write(QStringLiteral("de.lproj/Localizable.strings"), "\"Open\" = \"by somebody else\";\n");
    openDemo();
    QVERIFY2(news().endsWith(QLatin1String("of these, 1 do not fit what is there now")), qPrintable(news()));
    clickNews(QStringLiteral("Apply"));
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("by somebody else"));
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("Gute Nacht"));
    QVERIFY(news().startsWith(QLatin1String("1 edit from ")));
    clickNews(QStringLiteral("Show"));
    QCOMPARE(rows().topLevelItemCount(), 1);
    QCOMPARE(rows().topLevelItem(0)->text(6), QStringLiteral("changed since"));
    QCOMPARE(rows().topLevelItem(0)->checkState(0), Qt::Unchecked);
    rows().topLevelItem(0)->setCheckState(0, Qt::Checked);
    clickInList("applyButton");
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Offen"));
    QCOMPARE(news(), QString());
  }

  void showsTheEditsOneByOne() {
    crashAndOpenAgain();
    clickNews(QStringLiteral("Show"));
    QCOMPARE(rows().topLevelItemCount(), 2);
    const QTreeWidgetItem& row = *rows().topLevelItem(0);
    QCOMPARE(row.text(0), QStringLiteral("Open"));
    QCOMPARE(row.text(1), QStringLiteral("de"));
    QCOMPARE(row.text(2), QStringLiteral("Auf"));
    QCOMPARE(row.text(3), QStringLiteral("Offen"));
    rows().topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    clickInList("applyButton");
    QCOMPARE(stored(QStringLiteral("Open"), "de"), QStringLiteral("Auf"));
    QCOMPARE(stored(QStringLiteral("Good night"), "de"), QStringLiteral("Gute Nacht"));
    QVERIFY(news().startsWith(QLatin1String("1 edit from ")));
  }

  void offersThemAgainWhenTheListIsClosed() {
    crashAndOpenAgain();
    clickNews(QStringLiteral("Show"));
    QCOMPARE(news(), QString());
    clickInList("closeButton");
    QVERIFY(news().startsWith(QLatin1String("2 edits from ")));
  }

  void closesTheListWithTheProject() {
    crashAndOpenAgain();
    clickNews(QStringLiteral("Show"));
    program().delegate().close();
    QVERIFY(!list() || !list()->isVisible());
    QCOMPARE(news(), QString());
  }

  void savesAllLanguagesAfterAReplacedText() {
    openDemo();
    QVERIFY(!isEnabled(CommandId::SaveAll));
    edit(QStringLiteral("Open"), QStringLiteral("Offen"));
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(demo().read(QStringLiteral("de.lproj/Localizable.strings")).contains("\"Open\" = \"Offen\""));
    QVERIFY(!window().isWindowModified());
    QVERIFY(!isEnabled(CommandId::SaveAll));
  }

  void saysInTheWindowMenuThatThereIsSomethingToSave() {
    openDemo();
    QCoreApplication::processEvents();
    QCOMPARE(command(CommandId::ProjectWindow).text(), QStringLiteral("&Project Window"));
    edit(QStringLiteral("Open"), QStringLiteral("Offen"));
    QCoreApplication::processEvents();
    QCOMPARE(command(CommandId::ProjectWindow).text(), QStringLiteral("&Project Window (Not Saved)"));
  }

  void tellsWhichLanguageWasNotSavedAndTriesAgain() {
    openDemo();
    edit(QStringLiteral("Open"), QStringLiteral("Offen"));
    const QString directory = demo().file(QStringLiteral("de.lproj"));
    QVERIFY(QFile::rename(directory, directory + QStringLiteral(".away")));
    QVERIFY(QFile(demo().file(QStringLiteral("away"))).open(QIODevice::WriteOnly));
    QVERIFY(QFile::rename(demo().file(QStringLiteral("away")), directory));
    answerAlert(QStringLiteral("Ok"));
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY2(news().startsWith(QLatin1String("1 language was not saved. de: ")), qPrintable(news()));
    QVERIFY(window().isWindowModified());
    QVERIFY(isEnabled(CommandId::SaveAll));
    QVERIFY(QFile::remove(directory));
    QVERIFY(QFile::rename(directory + QStringLiteral(".away"), directory));
    clickNews(QStringLiteral("Try Again"));
    QCOMPARE(news(), QString());
    QVERIFY(demo().read(QStringLiteral("de.lproj/Localizable.strings")).contains("\"Open\" = \"Offen\""));
    QVERIFY(!window().isWindowModified());
  }
};

static const TestRegistration<UnsavedEditsTest> kUnsavedEditsRegistration("UnsavedEdits");

}  // namespace glossmill

#include "UnsavedEditsTest.moc"
