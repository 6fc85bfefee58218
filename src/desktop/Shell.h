#pragma once

#include <QPointer>

#include "desktop/host/InsideSheets.h"
#include "desktop/host/RecentMenu.h"
#include "desktop/host/WidgetPanels.h"
#include "desktop/windows/CommandActions.h"
#include "host/HostThreads.h"
#include "platform/Bundle.h"
#include "platform/NotificationCenter.h"

namespace glossmill {

class QuitPath;

/// What the windows share of the application around them. All of it outlives the windows.
struct Shell {
  AppDelegate& delegate;
  CommandActions& actions;
  InsideSheets& sheets;
  WidgetPanels& panels;
  RecentMenu& recentMenu;
  NotificationCenter& notifications;
  const Bundle& bundle;
  QuitPath& quitPath;
  const HostThreads& threads;
};

}  // namespace glossmill
