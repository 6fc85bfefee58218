#include "safety/SavedVersions.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>

#include "platform/ReadText.h"
#include "safety/FileContent.h"
#include "safety/ProjectState.h"

namespace glossmill {

namespace {

constexpr const char* kUnfinished = "unfinished";
constexpr const char* kFinished = "finished";
constexpr int kMostSavesASecond = 1000;

/// The first free name for a save of this second.
std::string numbered(const std::string& time, int number) {
  if (number == 1) return time;
  char digits[16];
  std::snprintf(digits, sizeof digits, "-%03d", number);
  return time + digits;
}

bool contains(const std::vector<std::string>& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

}  // namespace

std::string timeText(std::int64_t time) {
  namespace chrono = std::chrono;
  const chrono::sys_seconds point{chrono::seconds(time)};
  const chrono::sys_days day = chrono::floor<chrono::days>(point);
  const chrono::year_month_day date(day);
  const chrono::hh_mm_ss clock(point - day);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d-%02d-%02dZ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()));
  return text;
}

SavedVersions::SavedVersions(Files& files, SaveDisk& disk, const FileUrl& project)
    : m_files(files), m_disk(disk), m_directory(stateDirectoryOf(disk, project)) {}

Result<FileUrl> SavedVersions::directoryOf(std::string_view id) {
  return m_directory ? Result<FileUrl>(m_directory.value().appending("saves").appending(id)) : m_directory;
}

Result<FileUrl> SavedVersions::fileOf(const ContentHash& hash) {
  if (!m_directory) return m_directory;
  return m_directory.value().appending("contents").appending(hash.text());
}

Outcome SavedVersions::keepContent(const FileUrl& file, const ContentHash& hash) {
  const Result<FileUrl> kept = fileOf(hash);
  if (!kept) return kept.error();
  if (m_files.kindOf(kept.value()) == EntryKind::File) {
    const Result<bool> same = haveSameContent(m_files, file, kept.value());
    if (!same) return same.error();
    return same.value() ? Outcome(Done{}) : Error{"Another text with the same fingerprint is kept already."};
  }
  const Outcome made = m_disk.createPrivateDirectory(kept.value().parent());
  if (!made) return made;
  return m_disk.writePrivate(kept.value(), verified(contentOf(m_files, file), hash));
}

Result<std::unique_ptr<ByteReader>> SavedVersions::content(const ContentHash& hash) {
  const Result<FileUrl> kept = fileOf(hash);
  if (!kept) return kept.error();
  return m_files.open(kept.value());
}

Result<std::string> SavedVersions::begin(const SaveManifest& manifest) {
  const std::string time = timeText(manifest.time);
  for (int number = 1; number < kMostSavesASecond; ++number) {
    const std::string id = numbered(time, number);
    const Result<FileUrl> place = directoryOf(id);
    if (!place) return place.error();
    if (m_files.kindOf(place.value()) != EntryKind::Missing) continue;
    Outcome done = m_disk.createPrivateDirectory(place.value());
    if (done) done = amend(id, manifest);
    return done ? Result<std::string>(id) : done.error();
  }
  return Error{"There are too many saves of one second."};
}

Outcome SavedVersions::amend(const std::string& id, const SaveManifest& manifest) {
  const Result<FileUrl> place = directoryOf(id);
  if (!place) return place.error();
  const std::string text = manifest.text();
  return m_disk.writePrivate(place.value().appending(kUnfinished), onePiece(text));
}

Outcome SavedVersions::finish(const std::string& id) {
  const Result<FileUrl> place = directoryOf(id);
  if (!place) return place.error();
  return m_disk.rename(place.value().appending(kUnfinished), place.value().appending(kFinished));
}

Outcome SavedVersions::drop(const std::string& id) {
  const Result<FileUrl> place = directoryOf(id);
  if (!place) return place.error();
  for (const FileUrl& temporary : m_disk.abandonedWrites(place.value())) {
    const Outcome removed = m_disk.remove(temporary);
    if (!removed) return removed;
  }
  for (const char* name : {kUnfinished, kFinished}) {
    const Outcome removed = m_disk.remove(place.value().appending(name));
    if (!removed) return removed;
  }
  return m_disk.remove(place.value());
}

std::optional<SavedVersion> SavedVersions::versionIn(const std::string& id) {
  const Result<FileUrl> place = directoryOf(id);
  if (!place) return std::nullopt;
  for (const char* name : {kFinished, kUnfinished}) {
    const Result<std::string> text = readText(m_files, place.value().appending(name));
    if (!text) continue;
    Result<SaveManifest> manifest = SaveManifest::fromText(text.value());
    if (!manifest) return std::nullopt;
    return SavedVersion{id, name == kFinished, std::move(manifest.value())};
  }
  return std::nullopt;
}

std::vector<SavedVersion> SavedVersions::list() {
  std::vector<SavedVersion> versions;
  if (!m_directory) return versions;
  const auto entries = m_files.list(m_directory.value().appending("saves"));
  if (!entries) return versions;
  for (const DirectoryEntry& entry : entries.value()) {
    std::optional<SavedVersion> version = versionIn(entry.name);
    if (version) versions.push_back(std::move(*version));
  }
  std::reverse(versions.begin(), versions.end());
  return versions;
}

/// What the contents of a save take that no newer one has; these are added to `known`.
std::uint64_t SavedVersions::newBytes(const SaveManifest& manifest, std::vector<std::string>& known) {
  std::uint64_t bytes = 0;
  for (const SavedFile& file : manifest.files) {
    if (!file.before || contains(known, file.before->text())) continue;
    known.push_back(file.before->text());
    const Result<FileUrl> kept = fileOf(*file.before);
    const auto stamp = kept ? m_disk.stampOf(kept.value()) : kept.error();
    if (stamp && stamp.value()) bytes += stamp.value()->size;
  }
  return bytes;
}

void SavedVersions::forgetOld(std::int64_t now, const VersionLimits& limits) {
  std::vector<std::string> needed;
  std::uint64_t bytes = 0;
  std::size_t kept = 0;
  for (const SavedVersion& version : list()) {
    const std::size_t neededBefore = needed.size();
    const std::uint64_t more = newBytes(version.manifest, needed);
    const bool isRecent = kept < limits.saves || now - version.manifest.time <= limits.seconds;
    const bool stays = kept == 0 || !version.isFinished || (isRecent && bytes + more <= limits.bytes);
    if (stays) {
      ++kept;
      bytes += more;
      continue;
    }
    needed.resize(neededBefore);
    if (!drop(version.id)) return;  // the next save tries again
  }
  removeContentsBut(needed);
}

std::vector<FileUrl> SavedVersions::savesDirectories() {
  std::vector<FileUrl> directories;
  if (!m_directory) return directories;
  const FileUrl saves = m_directory.value().appending("saves");
  const auto entries = m_files.list(saves);
  if (!entries) return directories;
  for (const DirectoryEntry& entry : entries.value()) directories.push_back(saves.appending(entry.name));
  return directories;
}

std::vector<FileUrl> SavedVersions::directories() {
  std::vector<FileUrl> directories = savesDirectories();
  if (!m_directory) return directories;
  directories.push_back(m_directory.value());
  directories.push_back(m_directory.value().appending("contents"));
  return directories;
}

void SavedVersions::removeUnnoted() {
  for (const FileUrl& directory : savesDirectories()) {
    const auto entries = m_files.list(directory);
    if (entries && entries.value().empty()) static_cast<void>(m_disk.remove(directory));
  }
}

void SavedVersions::removeContentsBut(const std::vector<std::string>& needed) {
  if (!m_directory) return;
  const FileUrl contents = m_directory.value().appending("contents");
  const auto entries = m_files.list(contents);
  if (!entries) return;
  for (const DirectoryEntry& entry : entries.value()) {
    const bool goes = !contains(needed, entry.name);
    if (goes && !m_disk.remove(contents.appending(entry.name))) return;
  }
}

}  // namespace glossmill
