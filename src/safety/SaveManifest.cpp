#include "safety/SaveManifest.h"

#include <charconv>
#include <utility>

#include "text/PercentForm.h"
#include "text/Split.h"

namespace glossmill {

namespace {

constexpr std::string_view kFirstLine = "glossmill save 1";
constexpr std::string_view kLastLine = "end";
constexpr std::string_view kNone = "-";
constexpr std::size_t kFileWords = 9;

std::string numberOrNone(const std::optional<std::uint64_t>& number) {
  return number ? std::to_string(*number) : std::string(kNone);
}

std::string hashOrNone(const std::optional<ContentHash>& hash) {
  return hash ? hash->text() : std::string(kNone);
}

std::string fileLine(const SavedFile& file) {
  return "file " + percentForm(file.file.path()) + ' ' + percentForm(file.temporary.path()) + ' ' +
         percentForm(file.language) + ' ' + std::to_string(file.mode) + ' ' + hashOrNone(file.before) + ' ' +
         hashOrNone(file.after) + ' ' + numberOrNone(file.entriesBefore) + ' ' + std::to_string(file.entriesAfter) +
         '\n';
}

/// Takes words as they come and remembers whether one was not what it had to be.
class Words {
 public:
  explicit Words(std::vector<std::string_view> words) : m_words(std::move(words)) {}

  std::size_t count() const { return m_words.size(); }
  bool areFine() const { return m_areFine; }
  std::string_view word() { return m_next < m_words.size() ? m_words[m_next++] : wrong(); }

  std::string text() {
    const std::optional<std::string> plain = fromPercentForm(word());
    return plain ? *plain : std::string(wrong());
  }
  FileUrl url() {
    const std::string path = text();
    return path.empty() ? FileUrl() : FileUrl(path);
  }
  template <typename Number>
  Number number() {
    Number value = 0;
    const std::string_view digits = word();
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (problem != std::errc() || end != digits.data() + digits.size()) wrong();
    return value;
  }
  std::optional<std::uint64_t> numberOrNothing() {
    if (isNothing()) return std::nullopt;
    return number<std::uint64_t>();
  }
  std::optional<ContentHash> hashOrNothing() {
    if (isNothing()) return std::nullopt;
    const std::optional<ContentHash> hash = ContentHash::fromText(word());
    if (!hash) wrong();
    return hash;
  }

 private:
  std::string_view wrong() {
    m_areFine = false;
    return {};
  }
  bool isNothing() {
    if (m_next >= m_words.size() || m_words[m_next] != kNone) return false;
    ++m_next;
    return true;
  }

  std::vector<std::string_view> m_words;
  std::size_t m_next = 0;
  bool m_areFine = true;
};

SavedFile fileOf(Words& words) {
  SavedFile file;
  file.file = words.url();
  file.temporary = words.url();
  file.language = words.text();
  file.mode = words.number<std::uint32_t>();
  file.before = words.hashOrNothing();
  file.after = words.hashOrNothing();
  file.entriesBefore = words.numberOrNothing();
  file.entriesAfter = words.number<std::uint64_t>();
  return file;
}

/// False when the line is none that a manifest holds.
bool takeLine(std::string_view line, SaveManifest& manifest) {
  Words words(split(line, ' '));
  const std::string_view name = words.word();
  if (words.count() != (name == "file" ? kFileWords : 2)) return false;
  if (name == "project") {
    manifest.project = words.url();
  } else if (name == "time") {
    manifest.time = words.number<std::int64_t>();
  } else if (name == "version") {
    manifest.version = words.text();
  } else if (name == "command") {
    manifest.command = words.text();
  } else if (name == "directory") {
    manifest.directories.push_back(words.url());
  } else if (name == "file") {
    manifest.files.push_back(fileOf(words));
  } else {
    return false;
  }
  return words.areFine();
}

}  // namespace

std::string SaveManifest::text() const {
  std::string text = std::string(kFirstLine) + '\n';
  text += "project " + percentForm(project.path()) + '\n';
  text += "time " + std::to_string(time) + '\n';
  text += "version " + percentForm(version) + '\n';
  text += "command " + percentForm(command) + '\n';
  for (const FileUrl& directory : directories) text += "directory " + percentForm(directory.path()) + '\n';
  for (const SavedFile& file : files) text += fileLine(file);
  return text + std::string(kLastLine) + '\n';
}

Result<SaveManifest> SaveManifest::fromText(std::string_view text) {
  const Error broken{"The record of a save cannot be read."};
  const std::vector<std::string_view> lines = split(text, '\n');
  // The last line has a line feed, behind which nothing follows.
  if (lines.size() < 3 || lines.front() != kFirstLine) return broken;
  if (lines[lines.size() - 2] != kLastLine || !lines.back().empty()) return broken;
  SaveManifest manifest;
  for (std::size_t at = 1; at + 2 < lines.size(); ++at) {
    if (!takeLine(lines[at], manifest)) return broken;
  }
  return manifest;
}

}  // namespace glossmill
