#pragma once

#include <utility>

#include "support/RecordingParts.h"
#include "support/TestHost.h"

namespace glossmill {

/// A test host of which every call to a part is written down in one list. Its background jobs begin in runUntilIdle(),
/// so that the list is the same in every run.
struct RecordingHost {
  explicit RecordingHost(EmbeddedBundle::StringsTable strings = {}) : host(std::move(strings)) {
    calls.isMainThread = [this] { return host.threads.isMainThread(); };
  }
  RecordingHost(const RecordingHost&) = delete;
  RecordingHost& operator=(const RecordingHost&) = delete;
  ~RecordingHost() { host.threads.joinAll(); }

  Host parts() { return partsWith(host.bundle); }
  Host partsWith(Bundle& bundle) {
    return {files,      defaults,   notifications, threads, panels,      sheets,
            interfaces, recentMenu, systemLog,     bundle,  application, saves};
  }
  void runUntilIdle() {
    while (threads.release()) host.runUntilIdle();
  }

  CallRecorder calls;
  TestHost host;  ///< what the disk holds, how panels are answered, and the state of the controls
  RecordingFiles files{calls, host.files};
  RecordingDefaults defaults{calls, host.defaults};
  RecordingNotificationCenter notifications{calls, host.notifications};
  RecordingPanels panels{calls, host.panels};
  RecordingSheets sheets{calls, host.sheets};
  RecordingInterfaceFiles interfaces{calls, host.interfaces};
  RecordingMenu recentMenu{calls, host.recentMenu};
  LineRecordingSystemLog systemLog{calls, host.systemLog};
  RecordingApplication application{calls, host.application};
  RecordingThreads threads{calls, host.threads};
  RecordingSaveDisk saves{calls, host.saves};
};

}  // namespace glossmill
