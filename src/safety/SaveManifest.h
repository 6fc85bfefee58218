#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileUrl.h"
#include "text/ContentHash.h"
#include "text/Result.h"

namespace glossmill {

/// What one save did, or was to do, to one file.
struct SavedFile {
  FileUrl file;                                ///< links followed
  FileUrl temporary;                           ///< the new text until it is in place
  std::string language;                        ///< code; empty where none is known
  std::uint32_t mode = 0;                      ///< permissions of the former file
  std::optional<ContentHash> before;           ///< nothing: there was no file
  std::optional<ContentHash> after;            ///< nothing: the file was taken away
  std::optional<std::uint64_t> entriesBefore;  ///< nothing: unknown
  std::uint64_t entriesAfter = 0;
};

/// One save as it is kept in the state directory: enough to finish it or to take it back.
struct SaveManifest {
  FileUrl project;
  std::int64_t time = 0;  ///< seconds since 1970, UTC
  std::string version;    ///< of the program
  std::string command;    ///< by which words it was asked for
  std::vector<SavedFile> files;
  std::vector<FileUrl> directories;  ///< made for the save, outermost first

  /// Lines of words; texts stand in percent form.
  std::string text() const;
  /// An error for anything that text() does not give, a manifest that was cut off among it.
  static Result<SaveManifest> fromText(std::string_view text);
};

}  // namespace glossmill
