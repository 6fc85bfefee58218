#include "cli/ReportingFiles.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::size_t kWindow = 64 * 1024;

/// False also when the file cannot be read.
bool holdsExactly(ByteReader& reader, std::string_view text) {
  std::array<char, kWindow> window{};
  while (true) {
    const Result<std::size_t> got = reader.read(window);
    if (!got) return false;
    if (got.value() == 0) return text.empty();
    if (!text.starts_with(std::string_view(window.data(), got.value()))) return false;
    text.remove_prefix(got.value());
  }
}

}  // namespace

void ReportingFiles::divert(FileUrl url, std::function<void(std::string_view)> sink) {
  m_divertedUrl = std::move(url);
  m_sink = std::move(sink);
}

EntryKind ReportingFiles::kindOf(const FileUrl& url) {
  const EntryKind kind = m_disk.kindOf(url);
  if (kind != EntryKind::Missing || !pretends()) return kind;
  const auto found = std::find_if(m_written.begin(), m_written.end(),
                                  [&url](const WrittenFile& written) { return written.url == url; });
  if (found == m_written.end()) return EntryKind::Missing;
  return found->isDirectory ? EntryKind::Directory : EntryKind::File;
}

Outcome ReportingFiles::createDirectory(const FileUrl& directory, bool intermediate) {
  // With `intermediate` a directory that exists is none that was created.
  if (intermediate && kindOf(directory) == EntryKind::Directory) return Done{};
  const Outcome outcome = pretends() ? Done{} : m_disk.createDirectory(directory, intermediate);
  return noted(outcome, {directory, FileChange::Created, true});
}

Outcome ReportingFiles::writeText(const FileUrl& file, std::string_view text) {
  if (m_sink && file == m_divertedUrl) {
    m_sink(text);
    return Done{};
  }
  const FileChange change = changeBy(file, text);
  if (!pretends()) return noted(m_disk.writeText(file, text), {file, change, false});
  const Outcome possible = isValidUtf8(text) ? Outcome(Done{}) : Error{"The text cannot be written as UTF-8."};
  return noted(possible, {file, change, false});
}

FileChange ReportingFiles::changeBy(const FileUrl& file, std::string_view text) {
  if (kindOf(file) == EntryKind::Missing) return FileChange::Created;
  const auto reader = m_disk.open(file);
  return reader && holdsExactly(*reader.value(), text) ? FileChange::Unchanged : FileChange::Changed;
}

Outcome ReportingFiles::noted(const Outcome& outcome, WrittenFile file) {
  m_lastFailure.reset();
  if (outcome) {
    m_written.push_back(std::move(file));
  } else {
    m_lastFailure = FailedWrite{std::move(file.url), outcome.error()};
  }
  return outcome;
}

}  // namespace glossmill
