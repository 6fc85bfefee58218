#include <QAccessible>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QSettings>
#include <QSplitter>
#include <QToolBar>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class AccessTest : public DesktopFixture {
  Q_OBJECT

  static QString nameOf(QObject& object) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&object);
    return accessible ? accessible->text(QAccessible::Name) : QString();
  }

  static QStringList namelessIn(QWidget& window) {
    QStringList nameless;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const bool takesKeys = (widget->focusPolicy() & Qt::TabFocus) && widget->isVisibleTo(&window);
      const bool isPart = widget->objectName().startsWith(QLatin1String("qt_")) || widget->objectName().isEmpty();
      if (takesKeys && !isPart && nameOf(*widget).isEmpty()) nameless.append(widget->objectName());
    }
    return nameless;
  }

 private Q_SLOTS:
  void everyControlHasAName() {
    openDemo();
    QCOMPARE(namelessIn(window()), QStringList());
    program().delegate().openLogWindow();
    QCOMPARE(namelessIn(logWindow()), QStringList());
    project().addLanguage();
    QCOMPARE(namelessIn(program().sheets().current()->widget()), QStringList());
    press(Qt::Key_Escape);
    project().exportStrings();
    QCOMPARE(namelessIn(program().sheets().current()->widget()), QStringList());
    press(Qt::Key_Escape);
  }

  void tablesCanBeReadOut() {
    openDemo();
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&strings());
    QVERIFY(table && table->tableInterface());
    QCOMPARE(table->text(QAccessible::Name), QStringLiteral("Strings"));
    QCOMPARE(table->tableInterface()->rowCount(), 5);
    QCOMPARE(table->tableInterface()->cellAt(0, 0)->text(QAccessible::Name), QStringLiteral("Open"));
    QCOMPARE(table->tableInterface()->columnDescription(5), QStringLiteral("Status"));
  }

  void theEditorIsNamedAfterItsLanguage() {
    openDemo();
    select(languages(), QStringLiteral("de"));
    QCOMPARE(nameOf(editor()), QStringLiteral("Translation: German"));
  }

  void everyCommandIsInAMenu() {
    openDemo();
    QList<QAction*> found;
    for (QAction* menu : window().menuBar()->actions()) found += menu->menu()->actions();
    for (QAction* submenu : QList<QAction*>(found))
      found += submenu->menu() ? submenu->menu()->actions() : QList<QAction*>();
    for (const Command& command : commands()) {
      const bool isSubmenu = command.id == CommandId::OpenRecent || command.id == CommandId::ChooseRules;
      if (isSubmenu || command.menu == MenuId::Recent) continue;
      QVERIFY2(found.contains(&program().actions().action(command.id)), command.title.data());
    }
    QVERIFY(found.contains(program().recentMenu().menu().menuAction()));
  }

  void everyToolHasATextAndAPicture() {
    openDemo();
    QToolBar& bar = widget<QToolBar>("toolBar");
    QCOMPARE(bar.actions().size(), 6);
    QCOMPARE(bar.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    for (const QAction* action : bar.actions()) {
      QVERIFY(!action->icon().isNull());
      QVERIFY(!action->text().isEmpty());
    }
  }

  void theTableThatHasTheKeyboardIsFramed() {
    openDemo();
    const auto edge = [this] {
      const QImage picture = window().grab().toImage();
      const QPoint corner = strings().mapTo(&window(), QPoint(0, strings().height() / 2)) * picture.devicePixelRatio();
      return picture.pixelColor(corner + QPoint(1, 0));
    };
    editor().setFocus();
    const QColor plain = edge();
    strings().setFocus();
    QVERIFY(edge() != plain);
    QCOMPARE(edge(), window().palette().color(QPalette::Highlight));
    editor().setFocus();
    QCOMPARE(edge(), plain);
  }

  void isDrawnAtEveryScale() {
    openDemo();
    const QPixmap picture = window().grab();
    QCOMPARE(picture.size(), window().size() * window().devicePixelRatio());
    project().addLanguage();
    const QPixmap covered = window().grab();
    QCOMPARE(covered.size(), picture.size());
    QVERIFY(covered.toImage() != picture.toImage());
  }

  void splittersAndColumnsStayWhereTheyAre() {
    openDemo();
    widget<QSplitter>("tableSplitter").setSizes({500, 500});
    strings().horizontalHeader()->resizeSection(0, 333);
    const QList<int> sizes = widget<QSplitter>("tableSplitter").sizes();
    startAnew();
    openDemo();
    QCOMPARE(widget<QSplitter>("tableSplitter").sizes(), sizes);
    QCOMPARE(strings().horizontalHeader()->sectionSize(0), 333);
  }

  void speaksGermanThroughout() {
    startAnew(QStringLiteral("de"));
    openDemo();
    QCOMPARE(window().menuBar()->actions().first()->text(), QStringLiteral("&Datei"));
    QCOMPARE(cell(languages(), QStringLiteral("de"), 2), QStringLiteral("2 fehlen"));
    QCOMPARE(cell(languages(), QStringLiteral("en"), 2), QStringLiteral("1 fehlen"));
    QCOMPARE(widget<QToolBar>("toolBar").actions().first()->text(), QStringLiteral("Öffnen"));
    QCOMPARE(strings().model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Schlüssel"));
    QCOMPARE(filter().itemText(1), QStringLiteral("Unvollständige Texte"));
  }
};

static const TestRegistration<AccessTest> kAccessRegistration("Access");

}  // namespace glossmill

#include "AccessTest.moc"
