#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace glossmill {

/// A disk in memory that keeps a list of what was asked of it. Paths are absolute, and are told as they were asked for,
/// before links are followed. Any thread.
class InMemoryFiles : public Files {
 public:
  InMemoryFiles() { m_nodes[""]; }

  // ---- What is on the disk; directories above are made as needed ----

  void addDirectory(std::string_view path);
  void addFile(std::string_view path, std::string_view bytes);
  /// The target is absolute or relative to the link's directory; it need not exist.
  void addLink(std::string_view path, std::string_view target);
  void remove(std::string_view path);

  bool exists(std::string_view path);
  /// Nothing when it is no file.
  std::optional<std::string> bytesOf(std::string_view path);
  /// The path without links; what does not exist keeps its name.
  std::string whereLinksLead(std::string_view path);

  // ---- What is to fail from now on, with this sentence as the error ----

  /// The directory can be listed, but nothing in it reached: what it holds is not there for whoever asks.
  void makeUnsearchable(std::string_view path);
  void failListing(std::string_view path, std::string_view sentence);
  void failOpening(std::string_view path, std::string_view sentence);
  /// The file opens and gives its first `bytes` bytes.
  void failReadingAfter(std::string_view path, std::size_t bytes, std::string_view sentence);
  /// The file ends there, as one that could not be read completely.
  void endReadingAfter(std::string_view path, std::size_t bytes);
  void failWriting(std::string_view path, std::string_view sentence);
  void failCreating(std::string_view path, std::string_view sentence);
  /// For another disk that writes these files: notes the write, and gives the failure that is wanted.
  Outcome noteWrite(std::string_view path);

  // ---- What was asked ----

  std::vector<std::string> listed();
  std::vector<std::string> opened();
  std::vector<std::string> askedKinds();
  // Successes and failures alike.
  std::vector<std::string> written();
  std::vector<std::string> created();

  /// Called on the asker's thread before a directory is listed or a file is opened: the place for a test to interfere.
  /// Set them before the first background job.
  std::function<void(const std::string& path)> onList;
  std::function<void(const std::string& path)> onOpen;
  /// Called on the asker's thread with the files that are going to be opened.
  std::function<void(const std::vector<FileUrl>& files)> onExpect;

  // ---- The disk itself ----

  Result<std::vector<DirectoryEntry>> list(const FileUrl& directory) override;
  EntryKind kindOf(const FileUrl& url) override;
  std::optional<FileIdentity> identityOf(const FileUrl& url) override;
  Result<std::unique_ptr<ByteReader>> open(const FileUrl& file) override;
  void expect(std::vector<FileUrl>&& files) override {
    if (onExpect) onExpect(files);
  }
  Outcome createDirectory(const FileUrl& directory, bool intermediate) override;
  Outcome writeText(const FileUrl& file, std::string_view text) override;

 private:
  struct Node {
    EntryKind kind = EntryKind::Directory;
    std::uint64_t number = 0;
    std::string bytes;
    std::optional<std::string> linkTarget;  ///< only of a link, which has nothing else
  };
  struct ReadFailure {
    std::size_t after = 0;
    std::optional<std::string> sentence;  ///< nothing: no error
  };
  using Sentences = std::map<std::string, std::string, std::less<>>;

  std::string resolved(std::string_view path, bool followsLast = true) const;
  const Node* find(const std::string& resolvedPath) const;
  /// What a path leads to; null also when a directory on the way cannot be searched.
  const Node* reach(std::string_view path) const;
  bool isReachable(std::string resolvedPath) const;
  Node& put(std::string_view path, EntryKind kind);
  DirectoryEntry entryAt(const std::string& path, std::string_view name) const;
  Outcome create(const FileUrl& directory, bool intermediate);

  std::mutex m_mutex;
  std::map<std::string, Node> m_nodes;  ///< by path without links; the root is ""
  std::uint64_t m_made = 0;
  std::set<std::string> m_unsearchable;  ///< resolved paths
  Sentences m_listFailures;
  Sentences m_openFailures;
  Sentences m_writeFailures;
  Sentences m_createFailures;
  std::map<std::string, ReadFailure, std::less<>> m_readFailures;
  std::vector<std::string> m_listed;
  std::vector<std::string> m_opened;
  std::vector<std::string> m_askedKinds;
  std::vector<std::string> m_written;
  std::vector<std::string> m_created;
};

}  // namespace glossmill
