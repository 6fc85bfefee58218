#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class NewsTest : public DesktopFixture {
  Q_OBJECT

  NewsQueue& news() { return program().delegate().news(); }
  QWidget& bar() { return widget<QWidget>("newsBar"); }
  QString text() { return bar().isVisible() ? widget<QLabel>("newsText").text() : QString(); }
  QStringList buttons() {
    QStringList titles;
    for (const QPushButton* button : bar().findChildren<QPushButton*>()) {
      if (button->isVisible()) titles.append(button->text());
    }
    return titles;
  }
  QString focused() {
    const auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    return button && bar().isAncestorOf(button) ? button->text() + button->accessibleName() : QString();
  }
  void post(const char* id, const char* words, std::vector<NewsAction> actions = {}) {
    news().post({id, words, std::move(actions), NewsKind::Note});
  }

 private Q_SLOTS:
  void showsOneMessageAtATimeAndNothingWithoutOne() {
    openDemo();
    QVERIFY(!bar().isVisible());
    post("a", "one", {{"Show", nullptr}});
    post("b", "two");
    QCOMPARE(text(), QStringLiteral("one"));
    QCOMPARE(buttons(), QStringList({QStringLiteral("Show")}));
    click(widget<QToolButton>("closeNews"));
    QCOMPARE(text(), QStringLiteral("two"));
    QCOMPARE(buttons(), QStringList());
    click(widget<QToolButton>("closeNews"));
    QVERIFY(!bar().isVisible());
  }

  void takesNoKeyboardButIsReachedWithF6() {
    openDemo();
    editor().setFocus();
    QVERIFY(!isEnabled(CommandId::GoToMessage));
    post("a", "one", {{"Show", nullptr}, {"Restore", nullptr}});
    QVERIFY(editor().hasFocus());
    QVERIFY(isEnabled(CommandId::GoToMessage));
    press(Qt::Key_F6);
    QCOMPARE(focused(), QStringLiteral("Show"));
    press(Qt::Key_Tab);
    QCOMPARE(focused(), QStringLiteral("Restore"));
    press(Qt::Key_Tab);
    QCOMPARE(focused(), QStringLiteral("Close this message"));
    press(Qt::Key_F6);
    QVERIFY(editor().hasFocus());
    QCOMPARE(text(), QStringLiteral("one"));
  }

  void isClosedWithEscapeFromEachOfItsButtons() {
    openDemo();
    editor().setFocus();
    for (const int steps : {0, 1}) {
      post("a", "one", {{"Show", nullptr}});
      QVERIFY(isEnabled(CommandId::GoToMessage));
      press(Qt::Key_F6);
      for (int step = 0; step < steps; ++step) press(Qt::Key_Tab);
      press(Qt::Key_Escape);
      QVERIFY(!bar().isVisible());
      QVERIFY(editor().hasFocus());
    }
  }

  void doesWhatItsButtonSaysWithReturn() {
    openDemo();
    editor().setFocus();
    int done = 0;
    post("a", "one", {{"Show", [&done] { done = 1; }}, {"Restore", [&done] { done = 2; }}});
    QVERIFY(isEnabled(CommandId::GoToMessage));
    press(Qt::Key_F6);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    QCOMPARE(done, 2);
    QVERIFY(!bar().isVisible());
    QVERIFY(editor().hasFocus());
  }

  void keepsTheKeyboardWhenTheNextMessageComes() {
    openDemo();
    post("a", "one", {{"Show", nullptr}});
    post("b", "two", {{"Restore", nullptr}});
    QVERIFY(isEnabled(CommandId::GoToMessage));
    press(Qt::Key_F6);
    press(Qt::Key_Return);
    QCOMPARE(text(), QStringLiteral("two"));
    QCOMPARE(focused(), QStringLiteral("Close this message"));
  }

  void vanishesWithItsProject() {
    openDemo();
    post("a", "one");
    post("b", "two");
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!bar().isVisible());
    QVERIFY(!isEnabled(CommandId::GoToMessage));
  }

  void isCoveredByASheet() {
    openDemo();
    post("a", "one", {{"Show", nullptr}});
    project().addLanguage();
    QVERIFY(!isEnabled(CommandId::GoToMessage));
    QVERIFY(!bar().isEnabled());
    press(Qt::Key_Escape);
    QVERIFY(bar().isEnabled());
  }

  void isAnAlertToScreenReaders() {
    openDemo();
    post("a", "one\ntwo");
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&bar());
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::AlertMessage);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("one\ntwo"));
  }

  void isNoWiderThanANarrowWindow() {
    openDemo();
    const int narrow = window().minimumSizeHint().width();
    post("a", "A message that goes on and on, and names a file: /home/someone/Projects/Harbour/de.lproj/X.strings",
         {{"Show", nullptr}, {"Restore", nullptr}});
    QCoreApplication::processEvents();
    QVERIFY2(window().minimumSizeHint().width() <= qMax(narrow, 640), qPrintable(QString::number(narrow)));
  }
};

static const TestRegistration<NewsTest> kNewsRegistration("News");

}  // namespace glossmill

#include "NewsTest.moc"
