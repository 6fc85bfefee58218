#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/BytePieces.h"
#include "platform/FileStamp.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// What one file is to hold after a save.
struct FileText {
  FileUrl file;
  std::string language;                     ///< code, for the record of the save
  std::vector<std::string> otherLanguages;  ///< codes of those that were edited in the same file
  std::string table;                        ///< id, under rules that have tables; otherwise empty
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
  enum class Kind {
    Unchanged,  ///< it held the text already, and was not touched
    Changed,
    Created,
    Removed,
    Failed,           ///< the former file is whole
    DirectoryFailed,  ///< its directory is missing and cannot be made
  };
  Kind kind = Kind::Unchanged;
  Error error;                       ///< of a failure
  std::vector<FileUrl> directories;  ///< that were made for it
  std::optional<FileStamp> stamp;    ///< of the file that holds the text now
  bool hasOtherNames = false;        ///< the file had hard links, which keep the former text

  bool isWritten() const { return kind != Kind::Failed && kind != Kind::DirectoryFailed; }
};

}  // namespace glossmill
