#pragma once

#include <QMenuBar>

#include "desktop/windows/CommandActions.h"

namespace glossmill {

/// Fills a menu bar from the table of commands; `recentMenu` becomes the submenu of recent projects.
void fillMenuBar(QMenuBar& bar, CommandActions& actions, QMenu& recentMenu, const Bundle& bundle);

}  // namespace glossmill
