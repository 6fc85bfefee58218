#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/FileText.h"
#include "model/SaveAllowance.h"
#include "platform/Files.h"
#include "platform/SaveDisk.h"
#include "safety/SaveRecord.h"

namespace glossmill {

/// Why nothing was written at all.
struct SaveRefusal {
  enum class Kind {
    Incomplete,
    Outside,
    Changed,
    NoCopy,
    Busy,        ///< another program writes the project
    Unfinished,  ///< an earlier save was cut short, and is to be finished or taken back first
    Dropped,     ///< more entries would not be written again than the user allows
  };
  Kind kind = Kind::Outside;
  struct Place {
    FileUrl file;
    std::string sentence;
  };
  std::vector<Place> places;
  std::optional<std::int64_t> writer = std::nullopt;  ///< the process that writes, where it is known
};

/// Everything about a save but the texts.
struct SaveOrder {
  FileUrl project;        ///< the opened directory
  std::string version;    ///< of the program
  std::string command;    ///< by which words it was asked for
  std::int64_t time = 0;  ///< seconds since 1970
  SaveAllowance allowance;
  bool pretends = false;                         ///< tells what would become of the files, and writes nothing
  std::optional<std::uint64_t> maxDropped = {};  ///< refused when more entries would not be written again
};

struct SaveResult {
  std::optional<SaveRefusal> refusal;
  std::vector<FileOutcome> files;  ///< one for each text, in their order; none after a refusal
  std::optional<std::string> id;   ///< of the saved version, when one is kept
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

  void countDropped(const std::vector<FileText>& texts);
  void lookForChange(const FileText& text);
  bool isUnexpected(const FileText& text, const std::optional<FileStamp>& now) const;
  void refuseChanged(const FileText& text);
  void noteStamp(const FileUrl& file, Step& step);
  void lookAtFormer(const FileUrl& file, Step& step);
  void prepare(const FileText& text, Step& step);
  void prepareText(const FileText& text, Step& step);
  void prepareRemoval(const FileText& text, Step& step);
  std::vector<FileUrl> missingDirectories(const FileUrl& file);
  void pretend(const FileText& text, Step& step);
  void announceDirectories(const std::vector<FileText>& texts);
  Outcome makeDirectoryFor(const FileUrl& file, FileOutcome& outcome);
  void removeDirectories(std::vector<Step>& steps);
  Outcome copyFormer(const std::vector<Step>& steps);
  void keepVersion(const std::vector<Step>& steps);
  void lookOnceMore(const std::vector<Step>& steps);
  bool isWrittenMeanwhile(const Step& step);
  void putInPlace(Step& step);
  void refuse(SaveRefusal::Kind kind, const FileUrl& file, const std::string& sentence);
  WriteLimits limits(const FileText& text) const;

  Files& m_files;
  SaveDisk& m_disk;
  SaveOrder m_order;
  SaveRecord m_record;
  SaveResult m_result;
};

}  // namespace glossmill
