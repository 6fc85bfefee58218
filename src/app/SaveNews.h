#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/SaveRestorer.h"
#include "platform/Host.h"
#include "platform/NewsBoard.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The news that saves of the open project bring: entries that are not in the files any more, names of files that keep
/// the former text, another program that writes, a save that was cut short. Main thread.
class SaveNews {
 public:
  /// All of it outlives this; `restorer` tells of what stands in its way from now on.
  SaveNews(const Host& host, ProjectWindowController& project, NewsBoard& board, SaveRestorer& restorer);
  SaveNews(const SaveNews&) = delete;
  SaveNews& operator=(const SaveNews&) = delete;

  /// Shows one of the saved versions.
  std::function<void(const std::string& id)> show;

 private:
  void happened(ProjectMoment moment);
  void lookForUnfinishedSave();
  void saved();
  void refused(const SaveRefusal& refusal);
  void tellOfLosses();
  void tellOfOtherNames();
  void tellOfUnfinishedSave();
  std::optional<std::string> unfinishedSave();
  void tellThatBusy(std::optional<std::int64_t> process, std::function<void()> again);
  std::string lossText(const std::vector<const SavedLanguage*>& losses) const;
  std::string countOr(const std::optional<std::uint64_t>& count) const;
  std::string localized(std::string_view key) const { return m_host.bundle.localizedString(key); }

  const Host& m_host;
  ProjectWindowController& m_project;
  NewsBoard& m_board;
  SaveRestorer& m_restorer;
};

}  // namespace glossmill
