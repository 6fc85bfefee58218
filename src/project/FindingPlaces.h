#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/FindingList.h"
#include "project/CheckedFiles.h"
#include "project/NamedKeys.h"

namespace glossmill {

/// A finding about a row in one language.
struct FindingOfRow {
  Finding finding;
  const LocalizeString& record;
  const CheckedLanguage& language;
  std::optional<std::string_view> source;
  StoredText translation;
  std::size_t row = 0;  ///< number of the record
};

/// Gives findings their places, for which it reads files again, and finds on the way what only files show: repeated
/// keys, entries without a row, lines and calls that were rejected. One thread at a time.
class FindingPlaces {
 public:
  /// Everything outlives it.
  FindingPlaces(const CheckedProject& project, const CheckPolicy& policy, FileReading& files);

  void add(const FindingOfRow& found);
  void add(const Problem& problem);
  /// Looks through a strings file for what only it shows.
  void addStringsFile(const std::string& path) { m_strings[path].showsEntries = true; }
  /// For strings files under rules without rows for all entries: reads all sources for what they name.
  void readNamedKeys() { m_named.readSources(); }
  /// Looks through a source for calls that were rejected.
  void addSource(const std::string& path) { m_sources[path].showsCalls = true; }

  const CheckedFiles& files() const { return m_checkedFiles; }
  /// Reads one file, sources first; false when there is none left.
  bool step();
  std::size_t filesLeft() const { return m_sources.size() + m_strings.size() + m_named.sourcesLeft(); }
  std::vector<PlacedFinding> take() { return m_findings.take(); }

 private:
  /// What waits for a file to be read.
  struct StringsWork {
    bool showsEntries = false;
    std::vector<std::size_t> findings;  ///< that stand at the entries of their keys
  };
  struct SourceWork {
    bool showsCalls = false;
    std::vector<std::size_t> findings;  ///< that stand at the calls of their keys
  };
  using WaitingByKey = std::multimap<std::string, std::size_t, std::less<>>;

  std::string shown(const FileUrl& file) const;
  const CheckedFile* fileThatHolds(const FindingOfRow& found) const;
  void addAtEntry(const CheckedFile& file, PlacedFinding placed);
  void addWithoutEntry(const FindingOfRow& found, PlacedFinding placed);
  void readSource(const std::string& path, const SourceWork& work);
  void readStrings(const CheckedFile& file, const StringsWork& work);
  void lookThrough(const CheckedFile& file, const FileEntries& entries);
  void addOfEntry(const CheckedFile& file, const FileEntry& entry, Finding finding);
  WaitingByKey waitingByKey(const std::vector<std::size_t>& findings);

  const CheckedProject& m_project;
  const CheckPolicy& m_policy;
  FileReading& m_files;
  CheckedFiles m_checkedFiles;
  NamedKeys m_named;
  FindingList m_findings;
  std::map<std::string, SourceWork> m_sources;   ///< by path
  std::map<std::string, StringsWork> m_strings;  ///< by path
};

}  // namespace glossmill
