#pragma once

#include <utility>

#include "host/EmbeddedBundle.h"
#include "host/HeadlessApplication.h"
#include "host/HeadlessInterfaceFiles.h"
#include "host/HeadlessMenu.h"
#include "host/HeadlessSheets.h"
#include "host/HostThreads.h"
#include "host/LocalNotificationCenter.h"
#include "host/MemoryDefaults.h"
#include "platform/Host.h"
#include "support/InMemoryFiles.h"
#include "support/InMemorySaveDisk.h"
#include "support/RecordingSystemLog.h"
#include "support/ScriptedPanels.h"

namespace glossmill {

/// The host of a test: nothing but the threads is real, and every part tells what was asked of it. Make it before the
/// controllers that use it, and call runUntilIdle() after whatever starts a background job.
struct TestHost {
  explicit TestHost(EmbeddedBundle::StringsTable strings = {}) : bundle(std::move(strings)) {}

  Host parts() {
    return {files,      defaults,   notifications, threads, panels,      sheets,
            interfaces, recentMenu, systemLog,     bundle,  application, saves};
  }
  void runUntilIdle() { threads.runUntilIdle(); }

  InMemoryFiles files;
  InMemorySaveDisk saves{files};
  MemoryDefaults defaults;
  LocalNotificationCenter notifications;
  ScriptedPanels panels;
  HeadlessSheets sheets;
  HeadlessInterfaceFiles interfaces;
  HeadlessMenu recentMenu;
  RecordingSystemLog systemLog;
  EmbeddedBundle bundle;
  HeadlessApplication application;
  HostThreads threads;  ///< last, so that its jobs are joined before the parts that they use go away
};

}  // namespace glossmill
