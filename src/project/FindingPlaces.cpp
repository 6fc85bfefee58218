#include "project/FindingPlaces.h"

#include <algorithm>
#include <utility>

#include "checks/DuplicateCheck.h"
#include "checks/MalformedCheck.h"
#include "checks/NotLiteralCheck.h"
#include "checks/UnusedCheck.h"
#include "platform/ReadText.h"
#include "platform/ShownPath.h"
#include "project/ClassicCalls.h"
#include "text/Format.h"
#include "text/Utf16.h"

namespace glossmill {

namespace {

constexpr std::size_t kMostUnits = 80;  // of a line that is quoted

PlacedFinding placedFinding(Finding finding) {
  PlacedFinding placed;
  static_cast<Finding&>(placed) = std::move(finding);
  return placed;
}

void setPlace(PlacedFinding& finding, std::uint32_t line, std::uint32_t column) {
  finding.line = line;
  finding.column = column;
}

std::optional<Finding> findingOf(const Problem& problem) {
  const std::optional<Finding> malformed = malformedFinding(problem);
  return malformed ? malformed : notLiteralFinding(problem);
}

}  // namespace

FindingPlaces::FindingPlaces(const CheckedProject& project, const CheckPolicy& policy, FileReading& files)
    : m_project(project),
      m_policy(policy),
      m_files(files),
      m_checkedFiles(project),
      m_named(project, files),
      m_findings(policy) {}

std::string FindingPlaces::shown(const FileUrl& file) const {
  return std::string(shownPath(m_project.directory, file));
}

void FindingPlaces::add(const FindingOfRow& found) {
  PlacedFinding placed = placedFinding(found.finding);
  placed.language = found.language.code.text();
  placed.key = found.record.name();
  if (found.record.tableRow()) placed.table = found.record.tableRow()->table->id;
  placed.source = found.source;
  if (!found.translation) return addWithoutEntry(found, std::move(placed));
  placed.translation = found.translation.view();
  if (const CheckedFile* const file = m_checkedFiles.of(found.record, found.language)) {
    addAtEntry(*file, std::move(placed));
  } else {
    m_findings.add(std::move(placed));
  }
}

void FindingPlaces::addAtEntry(const CheckedFile& file, PlacedFinding placed) {
  placed.file = shown(file.url);
  const std::optional<std::size_t> number = m_findings.add(std::move(placed));
  if (number) m_strings[file.url.path()].findings.push_back(*number);
}

/// That of the language that is translated from, or else of the first one that has the row.
const CheckedFile* FindingPlaces::fileThatHolds(const FindingOfRow& found) const {
  if (const CheckedFile* const development = m_checkedFiles.developmentFileOf(found.record)) return development;
  for (const CheckedLanguage& language : m_project.languages) {
    if (language.translations[found.row]) return m_checkedFiles.of(found.record, language);
  }
  return nullptr;
}

/// At the first call; else at the entry of another language.
void FindingPlaces::addWithoutEntry(const FindingOfRow& found, PlacedFinding placed) {
  if (const TableRow* const row = found.record.tableRow()) {
    const CheckedFile* const other = row->places.empty() ? fileThatHolds(found) : nullptr;
    if (other) return addAtEntry(*other, std::move(placed));
    if (row->places.empty()) return static_cast<void>(m_findings.add(std::move(placed)));
    const SourcePlace& call = row->places.front();
    placed.file = shown(call.file);
    setPlace(placed, call.line, call.column);
    m_findings.add(std::move(placed));
    return;
  }
  if (found.record.filesArray().empty()) return static_cast<void>(m_findings.add(std::move(placed)));
  const FileUrl& source = found.record.filesArray().front();
  placed.file = shown(source);
  const std::optional<std::size_t> number = m_findings.add(std::move(placed));
  if (number) m_sources[source.path()].findings.push_back(*number);
}

void FindingPlaces::add(const Problem& problem) {
  std::optional<Finding> finding = findingOf(problem);
  if (!finding || !m_policy.isOn(finding->check)) return;
  if (!finding->what.ends_with('.')) finding->what += '.';
  PlacedFinding placed = placedFinding(std::move(*finding));
  placed.file = shown(problem.file);
  setPlace(placed, problem.line, problem.column);
  if (const CheckedFile* const file = m_checkedFiles.at(problem.file.path())) {
    placed.language = file->language->code.text();
    placed.table = file->tableId();
  }
  m_findings.add(std::move(placed));
}

bool FindingPlaces::step() {
  if (!m_sources.empty()) {
    const auto work = m_sources.extract(m_sources.begin());
    readSource(work.key(), work.mapped());
    return true;
  }
  if (m_named.step()) return true;
  if (m_strings.empty()) return false;
  const auto work = m_strings.extract(m_strings.begin());
  if (const CheckedFile* const file = m_checkedFiles.at(work.key())) readStrings(*file, work.mapped());
  return true;
}

FindingPlaces::WaitingByKey FindingPlaces::waitingByKey(const std::vector<std::size_t>& findings) {
  WaitingByKey waiting;
  for (const std::size_t number : findings) waiting.emplace(m_findings[number].key, number);
  return waiting;
}

void FindingPlaces::readSource(const std::string& path, const SourceWork& work) {
  const FileUrl file(path);
  const Result<std::string> text = readText(m_files, file);
  if (!text) return;
  WaitingByKey waiting = waitingByKey(work.findings);
  for (const ClassicCall& call : classicCalls(text.value())) {
    if (call.rejection && work.showsCalls) {
      add(Problem{file, call.line, call.column, "call-rejected", std::string(sentenceOf(*call.rejection))});
    }
    if (call.rejection) continue;
    const auto [begin, end] = waiting.equal_range(call.key);
    for (auto found = begin; found != end; ++found) setPlace(m_findings[found->second], call.line, call.column);
    waiting.erase(begin, end);
  }
}

/// Of a repeated key the last entry counts.
void FindingPlaces::readStrings(const CheckedFile& file, const StringsWork& work) {
  const std::optional<FileEntries> entries = entriesOf(file, m_files);
  if (!entries) return;
  const WaitingByKey waiting = waitingByKey(work.findings);
  if (!waiting.empty()) {
    for (const FileEntry& entry : entries->entries) {
      const auto [begin, end] = waiting.equal_range(entry.key.view());
      for (auto found = begin; found != end; ++found) setPlace(m_findings[found->second], entry.line, entry.column);
    }
  }
  if (work.showsEntries) lookThrough(file, *entries);
}

void FindingPlaces::lookThrough(const CheckedFile& file, const FileEntries& entries) {
  if (m_policy.isOn(Check::Duplicate)) {
    for (EntryFinding& found : duplicateFindings(entries)) {
      addOfEntry(file, entries.entries[found.entry], std::move(found.finding));
    }
  }
  if (file.table) return;
  if (m_policy.isOn(Check::Unused)) {
    const auto isNamed = [this](std::string_view key) { return m_named.hold(key); };
    for (EntryFinding& found : unusedFindings(entries, isNamed)) {
      addOfEntry(file, entries.entries[found.entry], std::move(found.finding));
    }
  }
  for (const FileEntry& line : entries.rejected) {
    const std::string text =
        formatText("The line is no entry that can be read: “%@”", {clipUtf16(line.key.view(), kMostUnits)});
    add(Problem{file.url, line.line, line.column, "line-rejected", text});
  }
}

void FindingPlaces::addOfEntry(const CheckedFile& file, const FileEntry& entry, Finding finding) {
  PlacedFinding placed = placedFinding(std::move(finding));
  placed.file = shown(file.url);
  setPlace(placed, entry.line, entry.column);
  placed.language = file.language->code.text();
  placed.table = file.tableId();
  placed.key = entry.key.view();
  placed.translation = entry.value.view();
  m_findings.add(std::move(placed));
}

}  // namespace glossmill
