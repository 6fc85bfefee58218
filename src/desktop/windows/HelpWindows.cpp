#include "desktop/windows/HelpWindows.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "app/Commands.h"
#include "desktop/host/QtText.h"
#include "desktop/look/Icons.h"
#include "text/Format.h"

namespace glossmill {

namespace {

/// "&Export..." is "Export".
QString plainTitle(QString title) {
  static const QRegularExpression kEllipsis(QStringLiteral(" ?(\\.\\.\\.|\u2026)$"));
  return title.remove(QLatin1Char('&')).remove(kEllipsis);
}

QString shortcutText(const Command& command) {
  QStringList keys;
  for (const std::string_view shortcut : command.shortcuts) {
    if (!shortcut.empty()) keys.append(QKeySequence(toQt(shortcut)).toString(QKeySequence::NativeText));
  }
  return keys.join(QStringLiteral(", "));
}

QFormLayout* shortcutList(const Bundle& bundle) {
  auto* list = new QFormLayout;
  list->setHorizontalSpacing(32);
  for (const Command& command : commands()) {
    const QString keys = shortcutText(command);
    if (!keys.isEmpty()) list->addRow(plainTitle(toQt(bundle.localizedString(command.title))), new QLabel(keys));
  }
  return list;
}

}  // namespace

void showShortcuts(QWidget* parent, const Bundle& bundle) {
  auto* window = new QDialog(parent);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(toQt(bundle.localizedString("Keyboard Shortcuts")));
  auto* layout = new QVBoxLayout(window);
  layout->setContentsMargins(20, 16, 20, 14);
  layout->addLayout(shortcutList(bundle));
  auto* buttons = new QDialogButtonBox;
  buttons->addButton(toQt(bundle.localizedString("Ok")), QDialogButtonBox::AcceptRole);
  QObject::connect(buttons, &QDialogButtonBox::accepted, window, &QDialog::accept);
  layout->addSpacing(8);
  layout->addWidget(buttons);
  window->show();
}

void showAbout(QWidget* parent, const Bundle& bundle) {
  auto* window = new QMessageBox(parent);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowModality(Qt::NonModal);
  window->setWindowTitle(toQt(bundle.localizedString("About Glossmill")));
  window->setIconPixmap(icon(QStringLiteral("glossmill")).pixmap(QSize(64, 64), window->devicePixelRatioF()));
  window->setText(QStringLiteral("Glossmill %1").arg(QCoreApplication::applicationVersion()));
  window->setInformativeText(toQt(bundle.localizedString("Looks after the translations of an Xcode project.")));
  window->addButton(toQt(bundle.localizedString("Ok")), QMessageBox::AcceptRole);
  window->show();
}

}  // namespace glossmill
