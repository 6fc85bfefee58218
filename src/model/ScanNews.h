#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/ScanEvents.h"

namespace glossmill {

/// What of a scan a person may want to hear of.
enum class ScanNewsKind {
  NoPackage,
  ProjectFileUnread,
  DirectoryUnread,
  LinksCutOff,
  OldLanguageName,
  SourceUnread,
  StringsFileMissing,
  StringsFileUnread,
  CallRejected,
  EntryRejected,
  EntryWithoutMatch,
  Problem,
};

/// One of many. The text is what the scan met: the start of a call or line, a key, a code, a reason.
struct ScanExample {
  FileUrl file;              ///< empty where it is about none
  std::uint32_t line = 0;    ///< from 1; 0: the file as a whole
  std::uint32_t column = 0;  ///< in UTF-16 units from 1; 0: the line as a whole
  std::string text;

  bool operator==(const ScanExample&) const = default;
};

/// How often something happened, and the first few times.
struct ScanNewsItem {
  ScanNewsKind kind = ScanNewsKind::Problem;
  std::string_view problem;  ///< the kind of a problem, which is counted for itself; lives as long as the program
  std::size_t count = 0;
  std::vector<ScanExample> examples;
};

/// What a scan has to say, summed up by kind while it goes on. One thread at a time.
class ScanNews {
 public:
  static constexpr std::size_t kMostExamples = 3;

  void add(const ScanEvent& event);
  /// One for each kind that was met, in the order of the kinds; problems in the order in which their kinds were met.
  const std::vector<ScanNewsItem>& items() const { return m_items; }

 private:
  ScanNewsItem& itemOf(ScanNewsKind kind, std::string_view problem);
  void count(ScanNewsKind kind, const FileUrl& file, std::string_view text);
  void count(const Problem& problem);

  std::vector<ScanNewsItem> m_items;
};

}  // namespace glossmill
