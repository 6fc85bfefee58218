#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "model/ScanEvents.h"
#include "platform/FileStamp.h"
#include "platform/SaveDisk.h"

namespace glossmill {

/// What is known of the project file and the strings files as they were read or written last, to notice what others do
/// to them and to count what a save leaves out. Filled on the scan's thread, then used on the main thread.
class ReadFiles {
 public:
  struct File {
    std::optional<FileStamp> stamp;        ///< nothing: there was no file
    std::optional<std::uint64_t> entries;  ///< accepted or not; nothing: it could not be read
  };

  void clear() {
    m_files.clear();
    m_expected.clear();
  }
  /// What happens in a scan.
  void add(const ScanEvent& event, SaveDisk& disk);
  void set(const FileUrl& file, const File& known) { m_files[file.path()] = known; }
  /// By their paths.
  const std::map<std::string, File>& files() const { return m_files; }
  /// Null for a file that nobody has looked for.
  const File* find(const FileUrl& file) const {
    const auto found = m_files.find(file.path());
    return found == m_files.end() ? nullptr : &found->second;
  }

 private:
  void expect(const FileUrl& file, SaveDisk& disk);
  void begin(const FileUrl& file, SaveDisk& disk);
  void beginWithout(const Language& language, SaveDisk& disk);

  std::map<std::string, File> m_files;
  std::map<std::string, std::optional<FileStamp>> m_expected;  ///< what they were before anybody read them
  std::uint64_t m_leftOut = 0;                                 ///< entries of the file that is being read
};

}  // namespace glossmill
