#include "safety/KeptJournals.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/ReadText.h"
#include "safety/EditJournal.h"
#include "safety/UnsavedEdits.h"

namespace glossmill {

namespace {

constexpr const char* kJournalFile = "edits";

std::vector<JournalEdit> compacted(const std::vector<JournalEdit>& edits) {
  UnsavedEdits unsaved;
  for (const JournalEdit& edit : edits) unsaved.add(edit);
  return unsaved.all();
}

}  // namespace

void KeptJournals::take(const FileUrl& project) {
  release();
  const Result<FileUrl> journals = journalsOf(m_disk, project);
  if (!journals) return;
  const Result<std::vector<DirectoryEntry>> names = m_files.list(journals.value());
  if (!names) return;
  for (auto name = names.value().rbegin(); name != names.value().rend(); ++name) {
    takeOne(journals.value().appending(name->name));
  }
}

void KeptJournals::takeOne(const FileUrl& directory) {
  Result<std::unique_ptr<DirectoryLock>> lock = m_disk.tryLock(directory);
  if (!lock || !lock.value()) return;
  const Result<std::string> text = readText(m_files, directory.appending(kJournalFile));
  if (!text) return;
  std::vector<JournalEdit> edits = compacted(readJournal(text.value()));
  if (!edits.empty()) m_journals.push_back({directory, std::move(lock.value()), std::move(edits)});
}

std::vector<JournalEdit> KeptJournals::edits() const {
  std::vector<JournalEdit> all;
  for (const Journal& journal : m_journals) all.insert(all.end(), journal.edits.begin(), journal.edits.end());
  return all;
}

Outcome KeptJournals::retire(const std::function<bool(const JournalEdit&)>& isOver) {
  Outcome result = Done{};
  for (Journal& journal : m_journals) {
    if (std::erase_if(journal.edits, isOver) == 0) continue;
    const Outcome written = write(journal);
    if (!written) result = written;
  }
  std::erase_if(m_journals, [](const Journal& journal) { return journal.edits.empty(); });
  return result;
}

Outcome KeptJournals::write(const Journal& journal) {
  const FileUrl file = journal.directory.appending(kJournalFile);
  std::string text;
  for (const JournalEdit& edit : journal.edits) text += journalLine(edit);
  if (!text.empty()) return m_disk.writePrivate(file, onePiece(text));
  const Outcome removed = m_disk.remove(file);
  return removed ? m_disk.remove(journal.directory) : removed;
}

}  // namespace glossmill
