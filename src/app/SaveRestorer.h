#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "project/ProjectWindowController.h"
#include "project/ProtectedSave.h"
#include "safety/FileState.h"
#include "safety/Restore.h"
#include "safety/SavedVersions.h"

namespace glossmill {

/// Brings back what the files of the open project held before a save, and finishes a save that was cut short. Unsaved
/// edits are asked about first, and the project is read anew afterwards. Main thread.
class SaveRestorer {
 public:
  /// Both outlive this.
  SaveRestorer(const Host& host, ProjectWindowController& project) : m_host(host), m_project(project) {}

  /// The saves of the project, newest first.
  std::vector<SavedVersion> versions();
  /// What a file of a save holds now.
  FileState stateNow(const SavedFile& file) { return stateOf(m_host.files, file); }
  /// All files of the save, or those in `wanted`. False when nothing was written.
  bool restore(const std::string& id, const std::vector<FileUrl>& wanted = {});
  /// Puts the rest of its files in place.
  bool finish(const std::string& id);

  /// Called when another program writes the project, with what is to be tried again later.
  std::function<void(std::optional<std::int64_t> process, std::function<void()> again)> busy;
  /// Called when another save was cut short, which is to be finished or taken back first.
  std::function<void()> unfinished;

 private:
  struct Written {
    SaveResult result;
    bool wantsReload = false;
  };

  std::optional<SavedVersion> version(const std::string& id);
  std::optional<RestorePlan> plan(SavedVersions& versions, const SavedVersion& version,
                                  const std::vector<FileUrl>& wanted);
  bool mayOverwrite(const std::string& changed);
  Written write(SavedVersions& versions, const SavedVersion& version, const RestorePlan& plan);
  void tellOfRefusal(const SaveRefusal& refusal, const std::function<void()>& again);
  void complainOfFailures(const SavedVersion& version, const RestorePlan& plan,
                          const std::vector<FileOutcome>& outcomes);
  void runOkAlert(const std::string& message, const std::string& details);
  std::string localized(std::string_view key) const { return m_host.bundle.localizedString(key); }

  const Host& m_host;
  ProjectWindowController& m_project;
};

}  // namespace glossmill
