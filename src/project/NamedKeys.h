#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_set>

#include "checks/CheckedProject.h"
#include "platform/Files.h"
#include "xcode/WholeTexts.h"

namespace glossmill {

/// Which keys the sources of a project name, as far as rules tell that have no rows for all entries: those of its rows,
/// and those that stand whole between two quotes.
class NamedKeys {
 public:
  /// Both outlive it. The sources are read only when it is asked for.
  NamedKeys(const CheckedProject& project, FileReading& files) : m_project(project), m_files(files) {}

  void readSources();
  /// Reads one source; false when there is none left.
  bool step();
  std::size_t sourcesLeft() const { return m_last - m_next; }
  bool hold(std::string_view key) { return m_rows.count(key) > 0 || m_texts.hold(key); }

 private:
  const CheckedProject& m_project;
  FileReading& m_files;
  std::size_t m_next = 0;  ///< source
  std::size_t m_last = 0;
  std::unordered_set<std::string_view> m_rows;
  WholeTexts m_texts;
};

}  // namespace glossmill
