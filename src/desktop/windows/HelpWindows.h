#pragma once

#include <QWidget>

#include "platform/Bundle.h"

namespace glossmill {

// Windows of the Help menu. They stand beside the others and go away when they are closed.

/// Lists every command that has a shortcut.
void showShortcuts(QWidget* parent, const Bundle& bundle);
void showAbout(QWidget* parent, const Bundle& bundle);

}  // namespace glossmill
