#include <QClipboard>
#include <QScrollBar>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class NavigationTest : public DesktopFixture {
  Q_OBJECT

  QString selectedKey() { return toQt(project().selectedString()->name()); }
  QString selectedCode() { return toQt(project().selectedLanguage()->iso639()); }

 private Q_SLOTS:
  void stepsThroughTheStringsFromTheEditor() {
    openDemo();
    editor().setFocus();
    press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(selectedKey(), QStringLiteral("Close"));
    press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(selectedKey(), QStringLiteral("Good morning"));
    press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(selectedKey(), QStringLiteral("Close"));
    QCOMPARE(strings().currentIndex().row(), 1);
    QVERIFY(editor().hasFocus());
  }

  void stepsThroughTheLanguages() {
    openDemo();
    press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(selectedCode(), QStringLiteral("de"));
    QCOMPARE(languages().currentIndex().row(), 1);
    press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(selectedCode(), QStringLiteral("ar"));
    QVERIFY(editor().hasFocus());
  }

  void stopsAtBothEnds() {
    openDemo();
    QVERIFY(!isEnabled(CommandId::PreviousString));
    QVERIFY(isEnabled(CommandId::NextString));
    QVERIFY(!isEnabled(CommandId::PreviousLanguage));
    project().stringController().setSelectionIndex(4);
    project().languageController().setSelectionIndex(2);
    QVERIFY(!isEnabled(CommandId::NextString));
    QVERIFY(!isEnabled(CommandId::NextLanguage));
    press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(strings().currentIndex().row(), 4);
  }

  void goesOnTypingInTheNextString() {
    openDemo();
    select(languages(), QStringLiteral("ar"));
    select(strings(), QStringLiteral("Close"));
    editor().setFocus();
    type(QStringLiteral("one"));
    press(Qt::Key_Return, Qt::ControlModifier);
    type(QStringLiteral("two"));
    QCOMPARE(cell(strings(), QStringLiteral("Close"), 1), QStringLiteral("one"));
    QCOMPARE(cell(strings(), QStringLiteral("Good morning"), 1), QStringLiteral("two"));
  }

  void opensEverySheetFromEveryText() {
    openDemo();
    for (QWidget* text : QList<QWidget*>{&editor(), &search(), &widget<QPlainTextEdit>("keyText")}) {
      for (const Qt::Key key : {Qt::Key_E, Qt::Key_I, Qt::Key_L, Qt::Key_B}) {
        text->setFocus();
        press(key, Qt::ControlModifier);
        QVERIFY2(isSheetUp(), qPrintable(text->objectName() + QLatin1Char(' ') + QChar(key)));
        press(Qt::Key_Escape);
        QVERIFY(!isSheetUp());
        QVERIFY(text->hasFocus());
      }
    }
  }

  void selectsWithTheArrowsInTheTable() {
    openDemo();
    strings().setFocus();
    press(Qt::Key_Down);
    QCOMPARE(selectedKey(), QStringLiteral("Close"));
    press(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(selectedKey(), QStringLiteral("First line\nsecond line"));
  }

  void selectsTheLastAndTheFirstRowWithEndAndHome() {
    openDemo();
    strings().setFocus();
    press(Qt::Key_End);
    QCOMPARE(selectedKey(), QStringLiteral("First line\nsecond line"));
    press(Qt::Key_Home);
    QCOMPARE(selectedKey(), QStringLiteral("Open"));
  }

  void showsEveryColumnOfManyLanguages() {
    for (char letter = 'a'; letter <= 'z'; ++letter) {
      demo().write(QStringLiteral("x%1.lproj/Localizable.strings").arg(QLatin1Char(letter)), "");
    }
    openDemo();
    QTRY_VERIFY(languages().verticalScrollBar()->maximum() > 0);
    QCOMPARE(languages().horizontalScrollBar()->maximum(), 0);
  }

  void selectsTheFirstRowWithTheFirstArrow() {
    openDemo();
    project().stringController().clearSelection();
    strings().setFocus();
    press(Qt::Key_Down);
    QCOMPARE(selectedKey(), QStringLiteral("Open"));
  }

  void reachesEveryControlWithTab() {
    openDemo();
    filter().setFocus();
    QStringList met;
    for (int step = 0; step < 8; ++step) {
      met.append(QApplication::focusWidget()->objectName());
      press(Qt::Key_Tab);
    }
    QCOMPARE(met, QStringList({QStringLiteral("stringFilterPopUp"), QStringLiteral("onlyButton"),
                               QStringLiteral("searchField"), QStringLiteral("stringTableView"),
                               QStringLiteral("languageTableView"), QStringLiteral("keyText"),
                               QStringLiteral("commentText"), QStringLiteral("translationTextView")}));
    QVERIFY(filter().hasFocus());
  }

  void copiesTheCellOfATable() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    languages().setFocus();
    QVERIFY(isEnabled(CommandId::Copy));
    QVERIFY(!isEnabled(CommandId::Paste));
    command(CommandId::Copy).trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("de"));
  }

  void opensTheProjectWindowAndTheLogWindowFromTheMenu() {
    openDemo();
    press(Qt::Key_2, Qt::ControlModifier);
    QVERIFY(QTest::qWaitForWindowActive(&logWindow()));
    press(Qt::Key_1, Qt::ControlModifier, &logWindow());
    QVERIFY(QTest::qWaitForWindowActive(&window()));
  }

  void listsTheShortcuts() {
    openDemo();
    press(Qt::Key_F1);
    QDialog* help = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (widget->windowTitle() == QLatin1String("Keyboard Shortcuts")) help = qobject_cast<QDialog*>(widget);
    }
    QVERIFY(help);
    QStringList texts;
    for (const QLabel* label : help->findChildren<QLabel*>()) texts.append(label->text());
    QVERIFY(texts.contains(QStringLiteral("Next String")));
    QVERIFY(texts.contains(QStringLiteral("Alt+Down, Ctrl+Return")));
    QTest::keyClick(help, Qt::Key_Escape);
    QVERIFY(!help->isVisible());
  }
};

static const TestRegistration<NavigationTest> kNavigationRegistration("Navigation");

}  // namespace glossmill

#include "NavigationTest.moc"
