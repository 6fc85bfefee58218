#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/Files.h"

namespace glossmill {

/// What became of a file or directory, or would become of it.
enum class FileChange { Created, Changed, Unchanged };

struct WrittenFile {
  FileUrl url;
  FileChange change = FileChange::Created;
  bool isDirectory = false;
};

struct FailedWrite {
  FileUrl url;
  Error error;
};

/// A disk that remembers what was written to it, or only would have been: when it pretends, nothing is written, and
/// what would exist is said to exist. Reading goes straight to the disk below.
class ReportingFiles : public Files {
 public:
  enum class Mode { Write, Pretend };

  static Mode modeFor(bool dryRun) { return dryRun ? Mode::Pretend : Mode::Write; }

  /// `disk` outlives it.
  ReportingFiles(Files& disk, Mode mode) : m_disk(disk), m_mode(mode) {}

  /// A text written to `url` goes to `sink` instead and is not reported.
  void divert(FileUrl url, std::function<void(std::string_view)> sink);

  /// In the order of writing.
  const std::vector<WrittenFile>& written() const { return m_written; }
  /// The last write, when it failed.
  const std::optional<FailedWrite>& lastFailure() const { return m_lastFailure; }

  Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) override { return m_disk.list(directory); }
  EntryKind kindOf(const FileUrl& url) override;
  std::optional<FileIdentity> identityOf(const FileUrl& url) override { return m_disk.identityOf(url); }
  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override { return m_disk.open(file); }
  Outcome createDirectory(const FileUrl& directory, bool intermediate) override;
  Outcome writeText(const FileUrl& file, std::string_view text) override;

 private:
  bool pretends() const { return m_mode == Mode::Pretend; }
  FileChange changeBy(const FileUrl& file, std::string_view text);
  Outcome noted(const Outcome& outcome, WrittenFile file);

  Files& m_disk;
  const Mode m_mode;
  FileUrl m_divertedUrl;
  std::function<void(std::string_view)> m_sink;
  std::vector<WrittenFile> m_written;
  std::optional<FailedWrite> m_lastFailure;
};

}  // namespace glossmill
