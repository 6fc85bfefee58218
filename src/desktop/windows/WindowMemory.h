#pragma once

#include <QMainWindow>

namespace glossmill {

/// Remembers from run to run where a window stood, and where its splitters and columns are, by the names of the
/// widgets.
void restoreLayout(QWidget& window);
void saveLayout(const QWidget& window);

}  // namespace glossmill
