#include "support/InMemorySaveDisk.h"

#include <utility>

namespace glossmill {

namespace {

Result<std::string> wholeOf(const BytePieces& bytes) {
  std::string whole;
  while (true) {
    const Result<std::string_view> piece = bytes();
    if (!piece) return piece.error();
    if (piece.value().empty()) return whole;
    whole += piece.value();
  }
}

}  // namespace

class InMemoryWrite : public PreparedWrite {
 public:
  InMemoryWrite(InMemorySaveDisk& disk, FileUrl target, FileUrl temporary, std::optional<FileStamp> former)
      : m_disk(disk), m_target(std::move(target)), m_temporary(std::move(temporary)), m_former(former) {}
  ~InMemoryWrite() override {
    if (m_exists && !m_disk.m_isDead) m_disk.m_files.remove(m_temporary.path());
  }

  const FileUrl& target() const override { return m_target; }
  const FileUrl& temporary() const override { return m_temporary; }
  const std::optional<FileStamp>& former() const override { return m_former; }
  Outcome putInPlace() override {
    const Outcome done = m_disk.rename(m_temporary, m_target);
    if (done) m_exists = false;
    return done;
  }

 private:
  InMemorySaveDisk& m_disk;
  FileUrl m_target;
  FileUrl m_temporary;
  std::optional<FileStamp> m_former;
  bool m_exists = true;
};

class InMemoryGrowingFile : public GrowingFile {
 public:
  InMemoryGrowingFile(InMemoryFiles& files, FileUrl file) : m_files(files), m_file(std::move(file)) {}

  Outcome append(std::string_view bytes) override {
    m_files.addFile(m_file.path(), m_files.bytesOf(m_file.path()).value_or("").append(bytes));
    return Done{};
  }

 private:
  InMemoryFiles& m_files;
  FileUrl m_file;
};

class InMemoryLock : public DirectoryLock {
 public:
  InMemoryLock(InMemorySaveDisk& disk, std::string path) : m_disk(disk), m_path(std::move(path)) {}
  ~InMemoryLock() override {
    const std::lock_guard lock(m_disk.m_mutex);
    m_disk.m_locked.erase(m_path);
  }

 private:
  InMemorySaveDisk& m_disk;
  std::string m_path;
};

void InMemorySaveDisk::goOn() {
  m_isDead = false;
  m_killed = 0;
}

Outcome InMemorySaveDisk::begin(const std::string& operation) {
  const std::lock_guard lock(m_mutex);
  ++m_done;
  if (onOperation) onOperation(operation);
  if (m_done == m_killed) {
    m_isDead = true;
    throw Killed();
  }
  m_operations.push_back(operation);
  if (m_done == m_failure.operation) return Error{std::string(m_failure.sentence)};
  return Done{};
}

Outcome InMemorySaveDisk::ask() {
  return ++m_asked == m_questionFailure.operation ? Outcome(Error{std::string(m_questionFailure.sentence)}) : Done{};
}

Outcome InMemorySaveDisk::within(const FileUrl& url, const WriteLimits& limits) const {
  if (limits.within.empty() || url.path().starts_with(limits.within.path() + "/")) return Done{};
  return Error{"It lies outside.", ErrorKind::Outside};
}

Result<FileUrl> InMemorySaveDisk::resolve(const FileUrl& url) {
  const Outcome asked = ask();
  if (!asked) return asked.error();
  return FileUrl(m_files.whereLinksLead(url.path()));
}

Result<std::optional<FileStamp>> InMemorySaveDisk::stampOf(const FileUrl& file) {
  const Outcome asked = ask();
  if (!asked) return asked.error();
  return knownStampOf(file);
}

std::optional<FileStamp> InMemorySaveDisk::knownStampOf(const FileUrl& file) {
  const std::optional<std::string> bytes = m_files.bytesOf(file.path());
  if (!bytes) return std::nullopt;
  FileStamp stamp;
  stamp.size = bytes->size();
  stamp.modified = static_cast<std::int64_t>(std::hash<std::string>()(*bytes) >> 1);
  stamp.node = m_files.identityOf(file)->node;
  stamp.mode = 0644;
  return stamp;
}

Result<std::unique_ptr<PreparedWrite>> InMemorySaveDisk::prepare(const FileUrl& file, const BytePieces& bytes,
                                                                 const WriteLimits& limits) {
  const FileUrl target(m_files.whereLinksLead(file.path()));
  const Outcome inside = within(target, limits);
  if (!inside) return inside.error();
  const Outcome begun = begin("prepare " + file.path());
  if (!begun) return begun.error();
  const Outcome writable = m_files.noteWrite(file.path());
  if (!writable) return writable.error();
  const Result<std::string> text = wholeOf(bytes);
  if (!text) return text.error();
  if (m_files.kindOf(target) == EntryKind::Directory) return Error{"It is a directory, not a file."};
  if (m_files.kindOf(target.parent()) != EntryKind::Directory) return Error{"The directory does not exist."};
  const std::optional<FileStamp> former = knownStampOf(target);
  const FileUrl temporary = target.parent().appending(".glossmill-7-" + std::to_string(m_written++) + ".tmp");
  m_files.addFile(temporary.path(), text.value());
  m_temporaries.push_back(temporary);
  return std::unique_ptr<PreparedWrite>(std::make_unique<InMemoryWrite>(*this, target, temporary, former));
}

Outcome InMemorySaveDisk::createDirectory(const FileUrl& directory, bool intermediate, const WriteLimits& limits) {
  const Outcome inside = within(FileUrl(m_files.whereLinksLead(directory.path())), limits);
  if (!inside) return inside;
  const Outcome begun = begin("mkdir " + directory.path());
  return begun ? m_files.createDirectory(directory, intermediate) : begun;
}

std::vector<FileUrl> InMemorySaveDisk::abandonedWrites(const FileUrl& directory) {
  std::vector<FileUrl> found;
  for (const FileUrl& temporary : m_temporaries) {
    if (temporary.parent() == directory && m_files.exists(temporary.path())) found.push_back(temporary);
  }
  return found;
}

Outcome InMemorySaveDisk::rename(const FileUrl& from, const FileUrl& to) {
  const Outcome begun = begin("rename " + to.path());
  if (!begun) return begun;
  const std::optional<std::string> bytes = m_files.bytesOf(from.path());
  if (!bytes) return Error{"The file does not exist."};
  m_files.addFile(to.path(), *bytes);
  m_files.remove(from.path());
  return Done{};
}

Outcome InMemorySaveDisk::remove(const FileUrl& url) {
  const Outcome begun = begin("remove " + url.path());
  if (!begun) return begun;
  m_files.remove(url.path());
  return Done{};
}

Result<FileUrl> InMemorySaveDisk::stateDirectory() {
  if (!m_stateDirectory) return Error{"There is no state directory."};
  return *m_stateDirectory;
}

Outcome InMemorySaveDisk::createPrivateDirectory(const FileUrl& directory) {
  const Outcome asked = ask();
  if (!asked) return asked;
  m_files.addDirectory(directory.path());
  return Done{};
}

Outcome InMemorySaveDisk::writePrivate(const FileUrl& file, const BytePieces& bytes) {
  const Outcome begun = begin("keep " + file.path());
  if (!begun) return begun;
  const Result<std::string> text = wholeOf(bytes);
  if (!text) return text.error();
  m_files.addFile(file.path(), text.value());
  return Done{};
}

Result<std::unique_ptr<GrowingFile>> InMemorySaveDisk::openGrowing(const FileUrl& file) {
  if (!m_stateDirectory) return Error{"There is no state directory."};
  return std::unique_ptr<GrowingFile>(std::make_unique<InMemoryGrowingFile>(m_files, file));
}

Result<std::unique_ptr<DirectoryLock>> InMemorySaveDisk::tryLock(const FileUrl& directory) {
  const Outcome asked = ask();
  if (!asked) return asked.error();
  const std::lock_guard lock(m_mutex);
  if (!m_locked.insert(directory.path()).second) return std::unique_ptr<DirectoryLock>();
  return std::unique_ptr<DirectoryLock>(std::make_unique<InMemoryLock>(*this, directory.path()));
}

}  // namespace glossmill
