#include "support/InMemoryFiles.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr int kMostLinks = 40;

void prependParts(std::deque<std::string>& parts, std::string_view path) {
  std::vector<std::string> split;
  while (!path.empty()) {
    const std::size_t slash = std::min(path.find('/'), path.size());
    const std::string_view part = path.substr(0, slash);
    if (!part.empty() && part != ".") split.emplace_back(part);
    path.remove_prefix(std::min(slash + 1, path.size()));
  }
  parts.insert(parts.begin(), split.begin(), split.end());
}

std::string withoutLastPart(const std::string& path) {
  return path.substr(0, path.empty() ? 0 : path.rfind('/'));
}

Error missing(std::string_view thing) {
  return {"The " + std::string(thing) + " does not exist."};
}

std::optional<Error> failureFor(const std::map<std::string, std::string, std::less<>>& failures,
                                std::string_view path) {
  const auto found = failures.find(path);
  if (found == failures.end()) return std::nullopt;
  return Error{found->second};
}

class MemoryReader : public ByteReader {
 public:
  MemoryReader(std::string bytes, std::optional<Error> endError)
      : m_bytes(std::move(bytes)), m_endError(std::move(endError)) {}

  Result<std::size_t> read(std::span<char> buffer) override {
    const std::size_t length = m_bytes.copy(buffer.data(), buffer.size(), m_offset);
    m_offset += length;
    if (length == 0 && m_endError) return *m_endError;
    return length;
  }

 private:
  const std::string m_bytes;
  const std::optional<Error> m_endError;
  std::size_t m_offset = 0;
};

}  // namespace

/// The path with every link on the way replaced by its target, and the last part too when asked for; a circle of links
/// leads to a path that does not exist.
std::string InMemoryFiles::resolved(std::string_view path, bool followsLast) const {
  std::deque<std::string> ahead;
  prependParts(ahead, path);
  std::string at;
  for (int links = 0; !ahead.empty() && links <= kMostLinks;) {
    const std::string name = ahead.front();
    ahead.pop_front();
    if (name == "..") {
      at = withoutLastPart(at);
      continue;
    }
    const Node* node = find(at + "/" + name);
    if (node && node->linkTarget && (followsLast || !ahead.empty())) {
      ++links;
      if (node->linkTarget->starts_with('/')) at.clear();
      prependParts(ahead, *node->linkTarget);
    } else {
      at += "/" + name;
    }
  }
  return ahead.empty() ? at : "/circle of links";
}

const InMemoryFiles::Node* InMemoryFiles::find(const std::string& resolvedPath) const {
  const auto found = m_nodes.find(resolvedPath);
  return found == m_nodes.end() ? nullptr : &found->second;
}

const InMemoryFiles::Node* InMemoryFiles::reach(std::string_view path) const {
  const std::string place = resolved(path);
  return isReachable(resolved(path, false)) && isReachable(place) ? find(place) : nullptr;
}

bool InMemoryFiles::isReachable(std::string resolvedPath) const {
  while (!resolvedPath.empty()) {
    resolvedPath = withoutLastPart(resolvedPath);
    if (m_unsearchable.contains(resolvedPath)) return false;
  }
  return true;
}

InMemoryFiles::Node& InMemoryFiles::put(std::string_view path, EntryKind kind) {
  const std::string place = resolved(path);
  for (std::string above = withoutLastPart(place); !find(above); above = withoutLastPart(above)) {
    m_nodes[above] = {EntryKind::Directory, ++m_made, "", {}};
  }
  Node& node = m_nodes[place];
  node = {kind, node.number == 0 ? ++m_made : node.number, "", {}};
  return node;
}

void InMemoryFiles::addDirectory(std::string_view path) {
  const std::lock_guard lock(m_mutex);
  put(path, EntryKind::Directory);
}

void InMemoryFiles::addFile(std::string_view path, std::string_view bytes) {
  const std::lock_guard lock(m_mutex);
  put(path, EntryKind::File).bytes = bytes;
}

void InMemoryFiles::addLink(std::string_view path, std::string_view target) {
  const std::lock_guard lock(m_mutex);
  put(path, EntryKind::Missing).linkTarget = target;
}

void InMemoryFiles::remove(std::string_view path) {
  const std::lock_guard lock(m_mutex);
  const std::string place = resolved(path, false);
  std::erase_if(m_nodes,
                [&place](const auto& entry) { return entry.first == place || entry.first.starts_with(place + "/"); });
}

bool InMemoryFiles::exists(std::string_view path) {
  return kindOf(FileUrl(path)) != EntryKind::Missing;
}

std::optional<std::string> InMemoryFiles::bytesOf(std::string_view path) {
  const std::lock_guard lock(m_mutex);
  const Node* node = find(resolved(path));
  if (!node || node->kind != EntryKind::File) return std::nullopt;
  return node->bytes;
}

std::string InMemoryFiles::whereLinksLead(std::string_view path) {
  const std::lock_guard lock(m_mutex);
  return resolved(path);
}

void InMemoryFiles::makeUnsearchable(std::string_view path) {
  const std::lock_guard lock(m_mutex);
  m_unsearchable.insert(resolved(path));
}

void InMemoryFiles::failListing(std::string_view path, std::string_view sentence) {
  const std::lock_guard lock(m_mutex);
  m_listFailures[std::string(path)] = sentence;
}

void InMemoryFiles::failOpening(std::string_view path, std::string_view sentence) {
  const std::lock_guard lock(m_mutex);
  m_openFailures[std::string(path)] = sentence;
}

void InMemoryFiles::failReadingAfter(std::string_view path, std::size_t bytes, std::string_view sentence) {
  const std::lock_guard lock(m_mutex);
  m_readFailures[std::string(path)] = {bytes, std::string(sentence)};
}

void InMemoryFiles::endReadingAfter(std::string_view path, std::size_t bytes) {
  const std::lock_guard lock(m_mutex);
  m_readFailures[std::string(path)] = {bytes, std::nullopt};
}

void InMemoryFiles::failWriting(std::string_view path, std::string_view sentence) {
  const std::lock_guard lock(m_mutex);
  m_writeFailures[std::string(path)] = sentence;
}

void InMemoryFiles::failCreating(std::string_view path, std::string_view sentence) {
  const std::lock_guard lock(m_mutex);
  m_createFailures[std::string(path)] = sentence;
}

std::vector<std::string> InMemoryFiles::listed() {
  const std::lock_guard lock(m_mutex);
  return m_listed;
}

std::vector<std::string> InMemoryFiles::opened() {
  const std::lock_guard lock(m_mutex);
  return m_opened;
}

std::vector<std::string> InMemoryFiles::askedKinds() {
  const std::lock_guard lock(m_mutex);
  return m_askedKinds;
}

std::vector<std::string> InMemoryFiles::written() {
  const std::lock_guard lock(m_mutex);
  return m_written;
}

std::vector<std::string> InMemoryFiles::created() {
  const std::lock_guard lock(m_mutex);
  return m_created;
}

DirectoryEntry InMemoryFiles::entryAt(const std::string& path, std::string_view name) const {
  const bool isLink = find(path)->linkTarget.has_value();
  const Node* target = isLink ? reach(path) : find(path);
  const EntryKind kind = target ? target->kind : EntryKind::Missing;
  return {std::string(name), kind, isLink, std::nullopt, !isLink && kind == EntryKind::File};
}

Result<std::vector<DirectoryEntry>> InMemoryFiles::list(const FileUrl& directory) {
  if (onList) onList(directory.path());
  const std::lock_guard lock(m_mutex);
  m_listed.push_back(directory.path());
  if (const std::optional<Error> failure = failureFor(m_listFailures, directory.path())) return *failure;
  const std::string place = resolved(directory.path());
  const Node* node = reach(directory.path());
  if (!node || node->kind != EntryKind::Directory) return missing("directory");
  std::vector<DirectoryEntry> entries;
  const std::string start = place + "/";
  for (auto at = m_nodes.lower_bound(start); at != m_nodes.end() && at->first.starts_with(start); ++at) {
    const std::string_view name = std::string_view(at->first).substr(start.size());
    if (!name.starts_with('.') && name.find('/') == std::string_view::npos) entries.push_back(entryAt(at->first, name));
  }
  return entries;
}

EntryKind InMemoryFiles::kindOf(const FileUrl& url) {
  const std::lock_guard lock(m_mutex);
  m_askedKinds.push_back(url.path());
  const Node* node = reach(url.path());
  return node ? node->kind : EntryKind::Missing;
}

std::optional<FileIdentity> InMemoryFiles::identityOf(const FileUrl& url) {
  const std::lock_guard lock(m_mutex);
  const Node* node = reach(url.path());
  if (!node) return std::nullopt;
  return FileIdentity{1, node->number};
}

Result<std::unique_ptr<ByteReader>> InMemoryFiles::open(const FileUrl& file) {
  if (onOpen) onOpen(file.path());
  const std::lock_guard lock(m_mutex);
  m_opened.push_back(file.path());
  if (const std::optional<Error> failure = failureFor(m_openFailures, file.path())) return *failure;
  const Node* node = reach(file.path());
  if (!node) return missing("file");
  if (node->kind == EntryKind::Directory) return Error{"It is a directory, not a file."};
  const auto failure = m_readFailures.find(file.path());
  const bool fails = failure != m_readFailures.end();
  std::string bytes = fails ? node->bytes.substr(0, failure->second.after) : node->bytes;
  std::optional<Error> endError;
  if (fails && failure->second.sentence) endError = Error{*failure->second.sentence};
  return std::unique_ptr<ByteReader>(std::make_unique<MemoryReader>(std::move(bytes), std::move(endError)));
}

Outcome InMemoryFiles::createDirectory(const FileUrl& directory, bool intermediate) {
  const std::lock_guard lock(m_mutex);
  m_created.push_back(directory.path());
  if (const std::optional<Error> failure = failureFor(m_createFailures, directory.path())) return *failure;
  return create(directory, intermediate);
}

Outcome InMemoryFiles::create(const FileUrl& directory, bool intermediate) {
  const Node* there = find(resolved(directory.path()));
  if (there && there->kind == EntryKind::Directory && intermediate) return Done{};
  if (find(resolved(directory.path(), false)))
    return Error{"There is already something with the name of the directory."};
  const Node* above = find(resolved(directory.parent().path()));
  if (!above && !intermediate) return missing("directory");
  if (!above) {
    const Outcome outcome = create(directory.parent(), true);
    if (!outcome) return outcome;
  } else if (above->kind != EntryKind::Directory) {
    return Error{"A part of the path is not a directory."};
  }
  put(directory.path(), EntryKind::Directory);
  return Done{};
}

Outcome InMemoryFiles::noteWrite(std::string_view path) {
  const std::lock_guard lock(m_mutex);
  m_written.emplace_back(path);
  const std::optional<Error> failure = failureFor(m_writeFailures, path);
  return failure ? Outcome(*failure) : Done{};
}

Outcome InMemoryFiles::writeText(const FileUrl& file, std::string_view text) {
  const std::lock_guard lock(m_mutex);
  m_written.push_back(file.path());
  if (const std::optional<Error> failure = failureFor(m_writeFailures, file.path())) return *failure;
  if (!isValidUtf8(text)) return Error{"The text cannot be written as UTF-8."};
  const std::string place = resolved(file.path());
  const Node* there = find(place);
  if (there && there->kind == EntryKind::Directory) return Error{"It is a directory, not a file."};
  const Node* above = find(withoutLastPart(place));
  if (!above || above->kind != EntryKind::Directory) return missing("directory");
  put(place, EntryKind::File).bytes = text;
  return Done{};
}

}  // namespace glossmill
