#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/ProjectOptions.h"
#include "platform/Host.h"
#include "safety/ProjectLock.h"
#include "safety/SaveTransaction.h"
#include "safety/WatchedReading.h"

namespace glossmill {

/// One save of a project past whatever stands in its way: another program that writes, a save that was cut short, what
/// was not read completely, what the transaction refuses. The user is asked where that is wanted, and the project is
/// nobody's while he thinks. Main thread.
class ProtectedSave {
 public:
  /// Everything outlives this. `unread` is what the system did not give of the project.
  ProtectedSave(const Host& host, const ProjectOptions& options, const FileUrl& project,
                const std::vector<UnreadPlace>& unread);

  /// The save is to take this one back, which was cut short and therefore is no obstacle.
  void takeBack(const std::string& unfinished) { m_takenBack = unfinished; }
  /// The project is kept from others until this object goes away, unless the save was refused.
  SaveResult save(const std::vector<FileText>& texts);
  /// Whether the user rather wants the project to be read anew, after a refusal.
  bool wantsReload() const { return m_wantsReload; }

 private:
  SaveResult attempt(const std::vector<FileText>& texts);
  std::optional<SaveRefusal> keepOthersAway();
  std::optional<SaveRefusal> obstacle();
  bool mayGoOn(const SaveRefusal& refusal);
  AlertRequest questionAbout(const SaveRefusal& refusal) const;
  std::string localized(std::string_view key) const { return m_host.bundle.localizedString(key); }

  const Host& m_host;
  const ProjectOptions& m_options;
  const std::vector<UnreadPlace>& m_unread;
  ProjectLock m_lock;
  SaveOrder m_order;
  std::string m_takenBack;  ///< id; usually empty
  bool m_wantsReload = false;
};

}  // namespace glossmill
