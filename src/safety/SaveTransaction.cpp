#include "safety/SaveTransaction.h"

#include <algorithm>
#include <utility>

#include "safety/AbandonedWrites.h"
#include "safety/FileContent.h"
#include "safety/ProjectBounds.h"

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

constexpr std::string_view kWrittenMeanwhile = "It was written by somebody else meanwhile.";

FileUrl resolvedOr(SaveDisk& disk, const FileUrl& url) {
  const Result<FileUrl> resolved = disk.resolve(url);
  return resolved ? resolved.value() : url;
}

}  // namespace

SaveTransaction::SaveTransaction(Files& files, SaveDisk& disk, const SaveOrder& order)
    : m_files(files),
      m_disk(disk),
      m_order(order),
      m_record(files, disk, {resolvedOr(disk, order.project), order.time, order.version, order.command, {}, {}}) {}

SaveResult SaveTransaction::save(const std::vector<FileText>& texts) {
  m_result = {};
  countDropped(texts);
  for (const FileText& text : texts) lookForChange(text);
  if (!m_order.pretends && !m_result.refusal) {
    removeAbandonedWrites(m_disk, m_record.versions(), texts);
    announceDirectories(texts);
  }
  std::vector<Step> steps(texts.size());
  for (std::size_t at = 0; at < texts.size() && !m_result.refusal; ++at) prepare(texts[at], steps[at]);
  if (!m_result.refusal) keepVersion(steps);
  if (!m_result.refusal || m_result.refusal->kind == SaveRefusal::Kind::NoCopy) lookOnceMore(steps);
  if (m_result.refusal) {
    removeDirectories(steps);
    m_record.forget();
    return std::move(m_result);
  }
  for (Step& step : steps) putInPlace(step);
  for (const Step& step : steps) m_result.files.push_back(step.outcome);
  m_result.id = m_record.id();
  if (m_record.finish()) m_record.versions().forgetOld(m_order.time, VersionLimits());
  return std::move(m_result);
}

void SaveTransaction::refuse(SaveRefusal::Kind kind, const FileUrl& file, const std::string& sentence) {
  if (!m_result.refusal) m_result.refusal = SaveRefusal{kind, {}};
  if (m_result.refusal->kind == kind) m_result.refusal->places.push_back({file, sentence});
}

/// Where the project's directory is gone there is nothing to lie in.
WriteLimits SaveTransaction::limits(const FileText& text) const {
  const bool anywhere = m_order.allowance.outside || m_files.kindOf(m_order.project) == EntryKind::Missing;
  return {anywhere ? FileUrl() : m_order.project, text.modeIfNew};
}

/// Of a file that holds nobody knows how many entries, any number may be dropped.
void SaveTransaction::countDropped(const std::vector<FileText>& texts) {
  if (!m_order.maxDropped) return;
  std::uint64_t dropped = 0;
  bool isKnown = true;
  for (const FileText& text : texts) {
    if (m_files.kindOf(text.file) == EntryKind::Missing) continue;
    isKnown = isKnown && text.entriesBefore;
    const std::uint64_t before = text.entriesBefore.value_or(0);
    if (before > text.entriesAfter) dropped += before - text.entriesAfter;
  }
  if (isKnown && dropped <= *m_order.maxDropped) return;
  const std::string count = isKnown ? std::to_string(dropped) : "an unknown number of";
  refuse(SaveRefusal::Kind::Dropped, m_order.project,
         count + (isKnown && dropped == 1 ? " entry" : " entries") + " would not be written again");
}

/// A file that somebody else has changed since it was read. One that vanished is written anew.
void SaveTransaction::lookForChange(const FileText& text) {
  const Result<std::optional<FileStamp>> now = m_disk.stampOf(text.file);
  if (now && now.value() && isUnexpected(text, now.value())) refuseChanged(text);
}

bool SaveTransaction::isUnexpected(const FileText& text, const std::optional<FileStamp>& now) const {
  return text.expected && !m_order.allowance.changed && now != *text.expected;
}

void SaveTransaction::refuseChanged(const FileText& text) {
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
  noteStamp(text.file, step);
  if (exists) lookAtFormer(text.file, step);
  if (step.saved.before == after.value()) return;
  step.saved.after = after.value();
  if (m_order.pretends) return pretend(text, step);
  if (!exists) {
    const Outcome made = makeDirectoryFor(text.file, step.outcome);
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
  const std::optional<FileStamp>& former = write.value()->former();
  if (former && isUnexpected(text, former)) return refuseChanged(text);
  step.write = std::move(write.value());
  if (former && !step.saved.before) lookAtFormer(text.file, step);
  step.saved.file = step.write->target();
  step.saved.temporary = step.write->temporary();
  if (former) step.saved.mode = former->mode;
  step.outcome.hasOtherNames = former && former->links > 1;
}

/// Taken as close to the text as can be: what others write afterwards is theirs.
void SaveTransaction::noteStamp(const FileUrl& file, Step& step) {
  const auto stamp = m_disk.stampOf(file);
  step.outcome.stamp = stamp ? stamp.value() : std::nullopt;
}

/// What cannot be read cannot be kept either, which is found out when it is to be copied.
void SaveTransaction::lookAtFormer(const FileUrl& file, Step& step) {
  const Result<ContentHash> before = hashOfContent(contentOf(m_files, file));
  if (before) step.saved.before = before.value();
}

void SaveTransaction::prepareRemoval(const FileText& text, Step& step) {
  const auto stamp = m_disk.stampOf(text.file);
  if (!stamp) return step.fail(FileOutcome::Kind::Failed, stamp.error());
  if (!stamp.value()) return;
  const Result<ContentHash> before = hashOfContent(contentOf(m_files, text.file));
  if (!before) return step.fail(FileOutcome::Kind::Failed, before.error());
  step.isRemoval = !m_order.pretends;
  step.outcome.kind = FileOutcome::Kind::Removed;
  step.saved.file = resolvedOr(m_disk, text.file);
  step.saved.before = before.value();
  step.saved.mode = stamp.value()->mode;
}

/// The directories that a file lacks, outermost first.
std::vector<FileUrl> SaveTransaction::missingDirectories(const FileUrl& file) {
  std::vector<FileUrl> missing;
  for (FileUrl above = file.parent(); m_files.kindOf(above) == EntryKind::Missing; above = above.parent()) {
    missing.insert(missing.begin(), above);
  }
  return missing;
}

Outcome SaveTransaction::makeDirectoryFor(const FileUrl& file, FileOutcome& outcome) {
  for (const FileUrl& directory : missingDirectories(file)) {
    const Outcome made = m_disk.createDirectory(directory, false, limits({}));
    const bool isThere = made || m_files.kindOf(directory) == EntryKind::Directory;  // somebody else was quicker
    if (!isThere) return made;
    if (made) outcome.directories.push_back(directory);
  }
  return Done{};
}

/// Says what would become of the file. Where it really lies is asked, as that is what would refuse it.
void SaveTransaction::pretend(const FileText& text, Step& step) {
  const Outcome inside = m_order.allowance.outside ? Done{} : checkInside(m_disk, m_order.project, text.file);
  if (!inside && inside.error().kind == ErrorKind::Outside) {
    return refuse(SaveRefusal::Kind::Outside, text.file, inside.error().sentence);
  }
  const bool exists = m_files.kindOf(text.file) != EntryKind::Missing;
  step.outcome.kind = exists ? FileOutcome::Kind::Changed : FileOutcome::Kind::Created;
  step.outcome.directories = missingDirectories(text.file);
}

void SaveTransaction::announceDirectories(const std::vector<FileText>& texts) {
  std::vector<FileUrl> directories;
  for (const FileText& text : texts) {
    if (!text.bytes) continue;
    const std::vector<FileUrl> missing = missingDirectories(text.file);
    directories.insert(directories.end(), missing.begin(), missing.end());
  }
  m_record.announce(directories);
}

/// After a refusal everything is as it was; a directory that somebody has filled meanwhile stays.
void SaveTransaction::removeDirectories(std::vector<Step>& steps) {
  for (Step& step : steps) {
    std::vector<FileUrl>& made = step.outcome.directories;
    while (!m_order.pretends && !made.empty() && m_disk.remove(made.back())) made.pop_back();
  }
}

Outcome SaveTransaction::copyFormer(const std::vector<Step>& steps) {
  for (const Step& step : steps) {
    const bool replaces = step.isRemoval || (step.write && step.write->former());
    if (!replaces) continue;
    if (!step.saved.before) return Error{"What the file holds now cannot be read: " + step.saved.file.path()};
    const Outcome copied = m_record.versions().keepContent(step.saved.file, *step.saved.before);
    if (!copied) return copied;
  }
  return Done{};
}

/// Without a copy there is nothing that could be taken back.
void SaveTransaction::keepVersion(const std::vector<Step>& steps) {
  std::vector<SavedFile> saved;
  std::vector<FileUrl> directories;
  for (const Step& step : steps) {
    const std::vector<FileUrl>& made = step.outcome.directories;
    directories.insert(directories.end(), made.begin(), made.end());
    if (step.isToBeDone()) saved.push_back(step.saved);
  }
  if (saved.empty()) return m_record.forget();
  Outcome kept = copyFormer(steps);
  if (kept) kept = m_record.note(saved, directories);
  if (kept) return;
  m_record.forget();
  lookOnceMore(steps);  // what was written meanwhile is not copied either
  if (!m_result.refusal && !m_order.allowance.noCopy)
    refuse(SaveRefusal::Kind::NoCopy, m_order.project, kept.error().sentence);
}

/// Flushing texts and copies takes its time, in which an editor may have written one of the files. That it could not be
/// copied is then no more than a consequence.
void SaveTransaction::lookOnceMore(const std::vector<Step>& steps) {
  SaveRefusal changed;
  changed.kind = SaveRefusal::Kind::Changed;
  for (const Step& step : steps) {
    if (isWrittenMeanwhile(step)) changed.places.push_back({step.saved.file, std::string(kWrittenMeanwhile)});
  }
  if (!changed.places.empty()) m_result.refusal = changed;
}

/// Since its new text was prepared. A file that vanished is written anew.
bool SaveTransaction::isWrittenMeanwhile(const Step& step) {
  if (!step.write || m_order.allowance.changed) return false;
  const Result<std::optional<FileStamp>> now = m_disk.stampOf(step.write->target());
  return now && now.value() && now.value() != step.write->former();
}

/// It is too late to refuse the whole when the first files are in place, but not for the one that is next.
void SaveTransaction::putInPlace(Step& step) {
  if (!step.isToBeDone()) return;
  if (isWrittenMeanwhile(step)) {
    return step.fail(FileOutcome::Kind::Failed, Error{std::string(kWrittenMeanwhile)});
  }
  const Outcome done = step.isRemoval ? m_disk.remove(step.saved.file) : step.write->putInPlace();
  if (!done) return step.fail(FileOutcome::Kind::Failed, done.error());
  using enum FileOutcome::Kind;
  step.outcome.kind = step.isRemoval ? Removed : step.write->former() ? Changed : Created;
  noteStamp(step.saved.file, step);
}

}  // namespace glossmill
