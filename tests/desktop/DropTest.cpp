#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QUrl>

#include "desktop/DesktopFixture.h"
#include "desktop/TestClasses.h"

namespace glossmill {

class DropTest : public DesktopFixture {
  Q_OBJECT

  /// Drags the paths over the window and drops them there; whether the window took them.
  bool drop(const QStringList& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window(), &event);
    return event.isAccepted();
  }

  void startWithoutAProject() {
    answerPanel([](QFileDialog& panel) { panel.reject(); });
    program().start(std::nullopt);
  }

 private Q_SLOTS:
  void opensADirectory() {
    startWithoutAProject();
    QVERIFY(drop({demo().directory()}));
    QTRY_VERIFY(project().opened());
    QCOMPARE(strings().model()->rowCount(), 5);
    QCOMPARE(window().windowTitle(), QStringLiteral("Demo[*]"));
  }

  void refusesAFileAndSeveralDirectories() {
    startWithoutAProject();
    QVERIFY(!drop({demo().file(QStringLiteral("Demo.m"))}));
    QVERIFY(!drop({demo().directory(), demo().file(QStringLiteral("de.lproj"))}));
    QVERIFY(!drop({}));
  }

  void refusesEverythingWhileASheetIsUp() {
    openDemo();
    project().addLanguage();
    QVERIFY(!drop({demo().directory()}));
  }

  void asksAboutUnsavedChangesFirst() {
    openDemo();
    select(languages(), QStringLiteral("ar"));
    select(strings(), QStringLiteral("Close"));
    editor().setFocus();
    type(QStringLiteral("x"));
    answerAlert(QStringLiteral("Cancel"));
    QVERIFY(drop({demo().directory()}));
    QTRY_COMPARE(alerts().size(), 1);
    QVERIFY(project().changed());
    // The directory is forgotten: the next panel asks.
    answerAlert(QStringLiteral("Delete"));
    bool asked = false;
    answerPanel([&asked](QFileDialog& panel) {
      asked = true;
      panel.reject();
    });
    command(CommandId::Open).trigger();
    QVERIFY(asked);
  }
};

static const TestRegistration<DropTest> kDropRegistration("Drop");

}  // namespace glossmill

#include "DropTest.moc"
