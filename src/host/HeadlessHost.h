#pragma once

#include <utility>

#include "host/EmbeddedBundle.h"
#include "host/HeadlessApplication.h"
#include "host/HeadlessInterfaceFiles.h"
#include "host/HeadlessMenu.h"
#include "host/HeadlessPanels.h"
#include "host/HeadlessSheets.h"
#include "host/HeadlessSystemLog.h"
#include "host/HostThreads.h"
#include "host/LocalNotificationCenter.h"
#include "host/MemoryDefaults.h"
#include "host/PosixFiles.h"
#include "host/PosixSaveDisk.h"
#include "platform/Host.h"

namespace glossmill {

/// A host without a window: the real disk, everything else in memory. Made on the main thread; outlives the program's
/// controllers, which are told of what their owner wants to see through the callbacks of the parts.
struct HeadlessHost {
  explicit HeadlessHost(EmbeddedBundle::StringsTable strings = {}) : bundle(std::move(strings)) {}

  Host parts() {
    return {files,      defaults,   notifications, threads, panels,      sheets,
            interfaces, recentMenu, systemLog,     bundle,  application, saves};
  }
  void runUntilIdle(const std::function<void()>& tick = {}) { threads.runUntilIdle(tick); }

  PosixFiles files;
  PosixSaveDisk saves;
  MemoryDefaults defaults;
  LocalNotificationCenter notifications;
  HeadlessPanels panels;
  HeadlessSheets sheets;
  HeadlessInterfaceFiles interfaces;
  HeadlessMenu recentMenu;
  HeadlessSystemLog systemLog;
  EmbeddedBundle bundle;
  HeadlessApplication application;
  HostThreads threads;  ///< last, so that its jobs are joined before the parts that they use go away
};

}  // namespace glossmill
