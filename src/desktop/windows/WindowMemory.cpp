#include "desktop/windows/WindowMemory.h"

#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QTableView>

#include "desktop/host/QtText.h"
#include "model/Settings.h"

namespace glossmill {

namespace {

QString keyFor(const QWidget& window, const QString& part) {
  return QStringList({toQt(setting(SettingId::WindowLayout).key), window.objectName(), part}).join(QLatin1Char('/'));
}

}  // namespace

void restoreLayout(QWidget& window) {
  const QSettings settings;
  window.restoreGeometry(settings.value(keyFor(window, QStringLiteral("geometry"))).toByteArray());
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    splitter->restoreState(settings.value(keyFor(window, splitter->objectName())).toByteArray());
  }
  for (QTableView* table : window.findChildren<QTableView*>()) {
    table->horizontalHeader()->restoreState(settings.value(keyFor(window, table->objectName())).toByteArray());
  }
}

void saveLayout(const QWidget& window) {
  QSettings settings;
  settings.setValue(keyFor(window, QStringLiteral("geometry")), window.saveGeometry());
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    settings.setValue(keyFor(window, splitter->objectName()), splitter->saveState());
  }
  for (const QTableView* table : window.findChildren<QTableView*>()) {
    settings.setValue(keyFor(window, table->objectName()), table->horizontalHeader()->saveState());
  }
}

}  // namespace glossmill
