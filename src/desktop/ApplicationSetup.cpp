#include "desktop/ApplicationSetup.h"

#include <QLibraryInfo>
#include <QLocale>

#include "desktop/host/OwnTranslator.h"
#include "desktop/look/Icons.h"

/// The resources lie in a static library, whose parts are left out unless somebody names them.
static void initializeResources() {
  Q_INIT_RESOURCE(glossmill);
}

namespace glossmill {

namespace {

/// The toolkit's own texts, such as those of its file panels, where its translations are installed.
void installToolkitTexts(QApplication& application) {
  auto* translator = new QTranslator(&application);
  const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (translator->load(QLocale::system(), QStringLiteral("qtbase"), QStringLiteral("_"), directory)) {
    QApplication::installTranslator(translator);
  }
}

void installOwnTexts(QApplication& application, const OwnTexts& texts) {
  auto* translator = new OwnTranslator(texts);
  translator->setParent(&application);
  QApplication::installTranslator(translator);
}

}  // namespace

OwnTexts setUpApplication(QApplication& application, const QStringList& languages, const char* version) {
  initializeResources();
  QApplication::setOrganizationName(QStringLiteral("Glossmill"));
  QApplication::setApplicationName(QStringLiteral("Glossmill"));
  QApplication::setApplicationVersion(QString::fromLatin1(version));
  QApplication::setDesktopFileName(QStringLiteral("glossmill"));
  QApplication::setQuitOnLastWindowClosed(false);
  OwnTexts texts = ownTextsFor(languages);
  installToolkitTexts(application);
  installOwnTexts(application, texts);
  QApplication::setWindowIcon(icon(QStringLiteral("glossmill")));
  return texts;
}

}  // namespace glossmill
