#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "model/ScanEvents.h"
#include "model/ScanNews.h"

namespace glossmill {

/// What a file is to a project.
enum class FileRole { ProjectFile, Source, StringsFile, Directory, Unknown };

/// What a scan left out of one file. Counts only: a project may hold more than a million of what is counted here.
struct FileFindings {
  FileUrl file;
  FileRole role = FileRole::Source;
  std::optional<Error> unread;                                    ///< why it was not read, or not completely
  std::array<std::uint32_t, kCallRejections> rejectedCalls = {};  ///< by reason
  std::uint32_t rejectedEntries = 0;
  std::uint32_t unmatchedEntries = 0;  ///< no source calls their key
};

/// The findings of all files together.
struct ScanTotals {
  std::size_t unreadProjectFiles = 0;
  std::size_t unreadSources = 0;
  std::size_t unreadStringsFiles = 0;
  std::size_t unreadPlaces = 0;  ///< directories, and what vanished before it was known what it is
  std::array<std::size_t, kCallRejections> rejectedCallsBy = {};  ///< by reason
  std::size_t rejectedCalls = 0;
  std::size_t rejectedEntries = 0;
  std::size_t unmatchedEntries = 0;
};

/// What a scan left out. One thread at a time.
class ScanReport {
 public:
  void add(const ScanEvent& event);
  /// What turned out in the end not to have been read, or not completely; a file that is known keeps its role.
  void addUnread(const std::vector<FileFindings>& places);

  /// The files of which something was left out, in the order in which they were read.
  const std::vector<FileFindings>& files() const { return m_files; }
  ScanTotals totals() const;
  /// What there is to say of the scan, with examples.
  const ScanNews& news() const { return m_news; }

 private:
  FileFindings& findings(FileRole role, const FileUrl& file);

  std::vector<FileFindings> m_files;
  ScanNews m_news;
};

}  // namespace glossmill
