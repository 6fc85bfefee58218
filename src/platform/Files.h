#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileUrl.h"
#include "text/Result.h"

namespace glossmill {

enum class EntryKind { Missing, File, Directory };

/// Tells whether two paths lead to the same directory.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t node = 0;
  bool operator==(const FileIdentity&) const = default;
};

/// One entry of a directory listing. `kind` is that of a link's target; a broken link is Missing.
struct DirectoryEntry {
  std::string name;
  EntryKind kind = EntryKind::Missing;
  bool isLink = false;
  std::optional<FileIdentity> target = {};  ///< of a link, where the disk knows it
  bool isRegular = false;                   ///< itself a file of bytes: no link, pipe or device
};

/// An open file that is read from front to back.
class ByteReader {
 public:
  virtual ~ByteReader() = default;
  /// Fills `buffer` as far as it can; 0 means the end of the file.
  virtual Result<std::size_t> read(std::span<char> buffer) = 0;
  /// The whole file as UTF-8 text, its encoding detected, where that is known already; valid as long as this object.
  /// Nothing has to be read then.
  virtual std::optional<std::string_view> textAtHand() { return std::nullopt; }
};

/// What the scan needs of a disk. Called from any thread.
class FileReading {
 public:
  virtual ~FileReading() = default;
  /// One level, hidden entries (names that begin with a dot) left out, sorted by the bytes of the names.
  virtual Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) = 0;
  virtual EntryKind kindOf(const FileUrl& url) = 0;
  virtual std::optional<FileIdentity> identityOf(const FileUrl& url) = 0;
  virtual Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) = 0;
  /// Regular files that are going to be opened next, in this order, and not those that were named before. A hint: a
  /// disk may read them ahead.
  virtual void expect(std::vector<FileUrl>&& /*files*/) {}
};

/// Gives a long text piece by piece, each valid until the next is asked for, cut between characters; the empty piece is
/// the end.
using TextPieces = std::function<std::string_view()>;

/// The whole disk. Called from the main thread.
class Files : public FileReading {
 public:
  /// Creates one directory, and those above it when asked to. An existing directory is an error without `intermediate`.
  virtual Outcome createDirectory(const FileUrl& directory, bool intermediate) = 0;
  /// Writes the text as UTF-8 without a mark: to a temporary file in the same directory, flushed, then renamed over the
  /// target. Permissions are kept, a link is written through. After an error the former file is whole. Text that is not
  /// valid UTF-8 is an error.
  virtual Outcome writeText(const FileUrl& file, std::string_view text) = 0;
  /// The same for a text that is made while it is written. Joins the pieces unless a disk can do better.
  virtual Outcome writeTextPieces(const FileUrl& file, const TextPieces& next);
};

}  // namespace glossmill
