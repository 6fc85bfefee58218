#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/Bundle.h"
#include "platform/NewsBoard.h"
#include "project/ProjectWindowController.h"

namespace glossmill {

/// The news of edits that no save wrote: those of a former session, files that a save could not write, a journal that
/// cannot be kept. Main thread.
class UnsavedNews {
 public:
  /// All of it outlives this.
  UnsavedNews(ProjectWindowController& project, NewsBoard& board, const Bundle& bundle);
  UnsavedNews(const UnsavedNews&) = delete;
  UnsavedNews& operator=(const UnsavedNews&) = delete;

  /// Seconds since 1970 as the user reads a date and a time. Set it before a project is opened.
  std::function<std::string(std::int64_t)> timeText;
  /// Shows the edits of former sessions one by one.
  std::function<void()> show;

  /// Says what of former sessions is left; nothing when nothing is.
  void offer();

 private:
  void happened(ProjectMoment moment);
  void applyFitting();
  void discard();
  std::string offerText(const std::vector<RecoverableEdit>& edits) const;
  void tellOfFailedFiles();
  void tellOfJournal();
  std::string localized(std::string_view key) const { return m_bundle.localizedString(key); }

  ProjectWindowController& m_project;
  NewsBoard& m_board;
  const Bundle& m_bundle;
  bool m_isJournalTold = false;
};

}  // namespace glossmill
