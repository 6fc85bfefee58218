#pragma once

#include <QApplication>

#include "desktop/host/OwnTexts.h"

namespace glossmill {

/// Gives the application its name, icon and language: the first of the wanted ones ("de-AT", "de") that the program
/// speaks. Returns the program's texts in it. Before the first window and the first setting.
OwnTexts setUpApplication(QApplication& application, const QStringList& languages, const char* version);

}  // namespace glossmill
