#include "project/FindingsRun.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "checks/RowFindings.h"

namespace glossmill {

namespace {

constexpr std::size_t kRowsOfSlice = 4096;

template <typename List, typename Item>
bool holds(const List& list, const Item& item) {
  return std::find(list.begin(), list.end(), item) != list.end();
}

std::uint32_t rejectedCalls(const FileFindings& file) {
  return std::accumulate(file.rejectedCalls.begin(), file.rejectedCalls.end(), std::uint32_t{0});
}

std::size_t countTexts(const CheckedLanguage& language) {
  return static_cast<std::size_t>(std::count_if(language.translations.begin(), language.translations.end(),
                                                [](StoredText text) { return static_cast<bool>(text); }));
}

}  // namespace

FindingsRun::FindingsRun(const CheckedProject& project, const CheckSettings& settings, FindingsWish wish,
                         FileReading& files)
    : m_project(project),
      m_wish(std::move(wish)),
      m_policy(settings, m_wish.checks),
      m_places(project, m_policy, files) {
  listSlices();
}

bool FindingsRun::counts(LanguageCode language, std::string_view table) const {
  const bool isOfLanguage = m_wish.languages.empty() || holds(m_wish.languages, language);
  return isOfLanguage && (m_wish.tables.empty() || table.empty() || holds(m_wish.tables, table));
}

void FindingsRun::listSlices() {
  for (std::size_t language = 0; language < m_project.languages.size(); ++language) {
    if (!counts(m_project.languages[language].code, {})) continue;
    for (std::size_t begin = 0; begin < m_project.records.size(); begin += kRowsOfSlice) {
      m_slices.push_back({language, begin, std::min(begin + kRowsOfSlice, m_project.records.size())});
    }
  }
}

bool FindingsRun::step() {
  if (!m_sources) {
    m_sources.emplace(m_project);
    if (m_policy.isOn(Check::Inconsistent)) m_sameSources = sameSources(*m_sources, m_project.records.size());
    return true;
  }
  if (m_nextSlice < m_slices.size()) {
    findInSlice(m_slices[m_nextSlice++]);
    return true;
  }
  if (std::exchange(m_listsFiles, false)) {
    listFiles();
    return true;
  }
  return m_places.step();
}

double FindingsRun::progress() const {
  const auto part = [](std::size_t done, std::size_t all) {
    return all == 0 ? 1.0 : static_cast<double>(done) / static_cast<double>(all);
  };
  if (m_listsFiles) return part(m_nextSlice, m_slices.size()) / 2;
  return (1 + part(m_fileCount - m_places.filesLeft(), m_fileCount)) / 2;
}

void FindingsRun::findInSlice(const Slice& slice) {
  const CheckedLanguage& language = m_project.languages[slice.language];
  const std::string_view code = language.code.text();
  for (std::size_t row = slice.begin; row < slice.end; ++row) findInRow(language, code, row);
  if (slice.end == m_project.records.size()) findInconsistent(language);
}

void FindingsRun::findInRow(const CheckedLanguage& language, std::string_view code, std::size_t row) {
  const LocalizeString& record = *m_project.records[row];
  const StoredText translation = language.translations[row];
  const CheckedRow checked{record,
                           m_sources->of(row),
                           translation ? std::optional(translation.view()) : std::nullopt,
                           code,
                           baseCodeOf(row),
                           m_project.form(),
                           translationsOf(m_project, row)};
  for (Finding& finding : rowFindings(checked, m_policy)) add(std::move(finding), language, row);
}

/// Rows that follow one another mostly have one.
std::string_view FindingsRun::baseCodeOf(std::size_t row) {
  const LanguageCode language = m_sources->languageOf(row);
  if (m_baseCode.empty() || language != m_base) {
    m_base = language;
    m_baseCode = language.text();
  }
  return m_baseCode;
}

void FindingsRun::findInconsistent(const CheckedLanguage& language) {
  for (RowFinding& found : inconsistentFindings(language, m_sameSources)) {
    add(std::move(found.finding), language, found.row);
  }
}

void FindingsRun::add(Finding finding, const CheckedLanguage& language, std::size_t row) {
  const LocalizeString& record = *m_project.records[row];
  if (record.tableRow() && !counts(language.code, record.tableRow()->table->id)) return;
  m_places.add({std::move(finding), record, language, m_sources->of(row), language.translations[row], row});
}

void FindingsRun::listFiles() {
  listProblems();
  listRepetitions();
  if (m_project.rules == RuleSet::Classic) listClassicFiles();
  m_fileCount = m_places.filesLeft();
}

void FindingsRun::listProblems() {
  for (const Problem& problem : m_project.problems) {
    const CheckedFile* const file = m_places.files().at(problem.file.path());
    if (!file || counts(file->language->code, file->tableId())) m_places.add(problem);
  }
}

/// Rules that have tables report them, but not whether the texts differ.
void FindingsRun::listRepetitions() {
  if (!m_policy.isOn(Check::Duplicate)) return;
  for (const Problem& problem : m_project.problems) {
    if (problem.kind != "repeated-key") continue;
    const CheckedFile* const file = m_places.files().at(problem.file.path());
    if (file && counts(file->language->code, file->tableId())) m_places.addStringsFile(file->url.path());
  }
}

void FindingsRun::listClassicFiles() {
  for (const FileFindings& file : m_project.leftOut) {
    if (m_policy.isOn(Check::NotLiteral) && rejectedCalls(file) > 0) m_places.addSource(file.file.path());
  }
  for (const auto& [path, file] : m_places.files().all()) {
    if (!counts(file.language->code, {}) || !mayShowMore(file)) continue;
    m_places.addStringsFile(path);
    if (m_policy.isOn(Check::Unused)) m_places.readNamedKeys();
  }
}

/// Entries that no record has were unknown, or repeated, or no entries at all.
bool FindingsRun::mayShowMore(const CheckedFile& file) const {
  const bool isWanted =
      m_policy.isOn(Check::Duplicate) || m_policy.isOn(Check::Unused) || m_policy.isOn(Check::Malformed);
  return isWanted && (!file.language->entries || *file.language->entries != countTexts(*file.language));
}

}  // namespace glossmill
