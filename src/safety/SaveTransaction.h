#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/BytePieces.h"
#include "platform/Files.h"
#include "platform/SaveDisk.h"
#include "safety/SavedVersions.h"

namespace glossmill {

/// What one file is to hold after a save.
struct FileText {
  FileUrl file;
  std::string language;  ///< code, for the record of the save
  /// Makes the bytes, each time from the start; nothing: the file is to be taken away.
  std::function<BytePieces()> bytes;
  std::optional<std::uint64_t> entriesBefore;  ///< nothing: unknown
  std::uint64_t entriesAfter = 0;
  /// What the file has to be still: its stamp when it was read, or that there was none. Not looked at without a value.
  std::optional<std::optional<FileStamp>> expected;
  std::optional<std::uint32_t> modeIfNew;
};

/// What became of one file.
struct FileOutcome {
  enum class Kind { Unchanged, Changed, Created, Removed, Failed, DirectoryFailed };
  Kind kind = Kind::Unchanged;
  Error error;                 ///< of a failure
  bool hasOtherNames = false;  ///< the file had hard links, which keep the former text
};

/// Why nothing was written at all.
struct SaveRefusal {
  enum class Kind { Outside, Changed, NoCopy };
  Kind kind = Kind::Outside;
  struct Place {
    FileUrl file;
    std::string sentence;
  };
  std::vector<Place> places;
};

/// What a user allows although it would be refused.
struct SaveAllowance {
  bool outside = false;
  bool changed = false;
  bool noCopy = false;
};

/// Everything about a save but the texts.
struct SaveOrder {
  FileUrl project;        ///< the opened directory
  std::string version;    ///< of the program
  std::string command;    ///< by which words it was asked for
  std::int64_t time = 0;  ///< seconds since 1970
  SaveAllowance allowance;
};

struct SaveResult {
  std::optional<SaveRefusal> refusal;
  std::vector<FileOutcome> files;    ///< one for each text, in their order; none after a refusal
  std::vector<FileUrl> directories;  ///< that were made
  std::optional<std::string> id;     ///< of the saved version, when one is kept
};

/// Writes a set of files as one: all texts are written beside their files first, then what they replace is copied, then
/// each takes its place. A kill leaves either nothing behind, or the manifest and the temporary files by which the rest
/// can be finished or taken back. Files whose bytes would not change are not touched. Main thread.
class SaveTransaction {
 public:
  /// Both disks outlive this.
  SaveTransaction(Files& files, SaveDisk& disk, const SaveOrder& order);

  SaveResult save(const std::vector<FileText>& texts);

 private:
  struct Step;

  void lookForChange(const FileText& text);
  void prepare(const FileText& text, Step& step);
  void prepareText(const FileText& text, Step& step);
  void prepareRemoval(const FileText& text, Step& step);
  Outcome makeDirectoryFor(const FileUrl& file);
  void removeDirectories();
  Outcome copyFormer(const std::vector<Step>& steps);
  void keepVersion(const std::vector<Step>& steps);
  void putInPlace(Step& step);
  void refuse(SaveRefusal::Kind kind, const FileUrl& file, const std::string& sentence);
  WriteLimits limits(const FileText& text) const;

  Files& m_files;
  SaveDisk& m_disk;
  SaveOrder m_order;
  SavedVersions m_versions;
  SaveResult m_result;
};

}  // namespace glossmill
