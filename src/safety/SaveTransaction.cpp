#include "safety/SaveTransaction.h"

#include <algorithm>
#include <utility>

#include "safety/FileContent.h"

namespace glossmill {

/// What is known of one file between the look at it and its rename.
struct SaveTransaction::Step {
  FileOutcome outcome;
  SavedFile saved;
  std::unique_ptr<PreparedWrite> write;
  bool isRemoval = false;

  bool isToBeDone() const { return write || isRemoval; }
  void fail(FileOutcome::Kind kind, const Error& error) {
    outcome.kind = kind;
    outcome.error = error;
  }
};

namespace {

FileUrl resolvedOr(SaveDisk& disk, const FileUrl& url) {
  const Result<FileUrl> resolved = disk.resolve(url);
  return resolved ? resolved.value() : url;
}

}  // namespace

SaveTransaction::SaveTransaction(Files& files, SaveDisk& disk, const SaveOrder& order)
    : m_files(files), m_disk(disk), m_order(order), m_versions(files, disk, order.project) {}

SaveResult SaveTransaction::save(const std::vector<FileText>& texts) {
  m_result = {};
  for (const FileText& text : texts) lookForChange(text);
  std::vector<Step> steps(texts.size());
  for (std::size_t at = 0; at < texts.size() && !m_result.refusal; ++at) prepare(texts[at], steps[at]);
  if (!m_result.refusal) keepVersion(steps);
  if (m_result.refusal) {
    removeDirectories();
    return std::move(m_result);
  }
  for (Step& step : steps) putInPlace(step);
  for (const Step& step : steps) m_result.files.push_back(step.outcome);
  if (m_result.id && m_versions.finish(*m_result.id)) m_versions.forgetOld(m_order.time, VersionLimits());
  return std::move(m_result);
}

void SaveTransaction::refuse(SaveRefusal::Kind kind, const FileUrl& file, const std::string& sentence) {
  if (!m_result.refusal) m_result.refusal = SaveRefusal{kind, {}};
  if (m_result.refusal->kind == kind) m_result.refusal->places.push_back({file, sentence});
}

WriteLimits SaveTransaction::limits(const FileText& text) const {
  return {m_order.allowance.outside ? FileUrl() : m_order.project, text.modeIfNew};
}

/// A file that somebody else has changed since it was read. One that vanished is written anew.
void SaveTransaction::lookForChange(const FileText& text) {
  if (!text.expected || m_order.allowance.changed) return;
  const Result<std::optional<FileStamp>> now = m_disk.stampOf(text.file);
  if (!now || !now.value() || now.value() == *text.expected) return;
  refuse(SaveRefusal::Kind::Changed, text.file,
         *text.expected ? "It was changed since it was read." : "It was not there when the project was read.");
}

void SaveTransaction::prepare(const FileText& text, Step& step) {
  step.saved.language = text.language;
  step.saved.entriesBefore = text.entriesBefore;
  step.saved.entriesAfter = text.entriesAfter;
  if (text.bytes) {
    prepareText(text, step);
  } else {
    prepareRemoval(text, step);
  }
}

void SaveTransaction::prepareText(const FileText& text, Step& step) {
  const Result<ContentHash> after = hashOfContent(text.bytes());
  if (!after) return step.fail(FileOutcome::Kind::Failed, after.error());
  const bool exists = m_files.kindOf(text.file) != EntryKind::Missing;
  if (exists) {
    const Result<ContentHash> before = hashOfContent(contentOf(m_files, text.file));
    if (before && before.value() == after.value()) return;
    if (before) step.saved.before = before.value();
  } else {
    const Outcome made = makeDirectoryFor(text.file);
    if (!made && made.error().kind == ErrorKind::Outside) {
      return refuse(SaveRefusal::Kind::Outside, text.file, made.error().sentence);
    }
    if (!made) return step.fail(FileOutcome::Kind::DirectoryFailed, made.error());
  }
  Result<std::unique_ptr<PreparedWrite>> write = m_disk.prepare(text.file, text.bytes(), limits(text));
  if (!write && write.error().kind == ErrorKind::Outside) {
    return refuse(SaveRefusal::Kind::Outside, text.file, write.error().sentence);
  }
  if (!write) return step.fail(FileOutcome::Kind::Failed, write.error());
  step.write = std::move(write.value());
  step.saved.after = after.value();
  step.saved.file = step.write->target();
  step.saved.temporary = step.write->temporary();
  if (const std::optional<FileStamp>& former = step.write->former()) step.saved.mode = former->mode;
  step.outcome.hasOtherNames = step.write->former() && step.write->former()->links > 1;
}

void SaveTransaction::prepareRemoval(const FileText& text, Step& step) {
  const auto stamp = m_disk.stampOf(text.file);
  if (!stamp) return step.fail(FileOutcome::Kind::Failed, stamp.error());
  if (!stamp.value()) return;
  const Result<ContentHash> before = hashOfContent(contentOf(m_files, text.file));
  if (!before) return step.fail(FileOutcome::Kind::Failed, before.error());
  step.isRemoval = true;
  step.saved.file = resolvedOr(m_disk, text.file);
  step.saved.before = before.value();
  step.saved.mode = stamp.value()->mode;
}

Outcome SaveTransaction::makeDirectoryFor(const FileUrl& file) {
  std::vector<FileUrl> missing;
  for (FileUrl above = file.parent(); m_files.kindOf(above) == EntryKind::Missing; above = above.parent()) {
    missing.push_back(above);
  }
  const FileUrl within = m_order.allowance.outside ? FileUrl() : m_order.project;
  for (auto directory = missing.rbegin(); directory != missing.rend(); ++directory) {
    const Outcome made = m_disk.createDirectory(*directory, false, {within, {}});
    if (!made) return made;
    m_result.directories.push_back(*directory);
  }
  return Done{};
}

/// After a refusal everything is as it was; a directory that somebody has filled meanwhile stays.
void SaveTransaction::removeDirectories() {
  while (!m_result.directories.empty()) {
    if (!m_disk.remove(m_result.directories.back())) return;
    m_result.directories.pop_back();
  }
}

Outcome SaveTransaction::copyFormer(const std::vector<Step>& steps) {
  for (const Step& step : steps) {
    const bool replaces = step.isRemoval || (step.write && step.write->former());
    if (!replaces) continue;
    if (!step.saved.before) return Error{"What the file holds now cannot be read: " + step.saved.file.path()};
    const Outcome copied = m_versions.keepContent(step.saved.file, *step.saved.before);
    if (!copied) return copied;
  }
  return Done{};
}

/// From here on a kill leaves something to finish or take back; without a copy there is nothing that could.
void SaveTransaction::keepVersion(const std::vector<Step>& steps) {
  SaveManifest manifest{
      resolvedOr(m_disk, m_order.project), m_order.time, m_order.version, m_order.command, {}, m_result.directories};
  for (const Step& step : steps) {
    if (step.isToBeDone()) manifest.files.push_back(step.saved);
  }
  if (manifest.files.empty()) return;
  const Outcome copied = copyFormer(steps);
  const Result<std::string> id = copied ? m_versions.begin(manifest) : copied.error();
  if (id) {
    m_result.id = id.value();
  } else if (!m_order.allowance.noCopy) {
    refuse(SaveRefusal::Kind::NoCopy, m_order.project, id.error().sentence);
  }
}

void SaveTransaction::putInPlace(Step& step) {
  if (!step.isToBeDone()) return;
  const Outcome done = step.isRemoval ? m_disk.remove(step.saved.file) : step.write->putInPlace();
  if (!done) return step.fail(FileOutcome::Kind::Failed, done.error());
  using enum FileOutcome::Kind;
  step.outcome.kind = step.isRemoval ? Removed : step.write->former() ? Changed : Created;
}

}  // namespace glossmill
