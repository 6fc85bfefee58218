#include "xcode/TableRows.h"

#include <functional>
#include <string>
#include <utility>

#include "xcode/InterfaceComment.h"

namespace glossmill {

TableRows::TableRows(std::shared_ptr<StringsTable> table, TableEntries entries, std::shared_ptr<TextArena> arena)
    : m_table(std::move(table)), m_entries(std::move(entries)), m_arena(std::move(arena)) {
  m_records.resize(m_entries.keys.size());
  for (std::size_t file = 0; file < m_table->files.size(); ++file) {
    const LanguageCode language = m_table->files[file].language;
    if (language == m_table->development) m_development = file;
    if (file == 0 || language.number() > m_highest.number()) m_highest = language;
  }
}

LocalizeString& TableRows::record(Number key) {
  if (key >= m_records.size()) m_records.resize(key + 1);
  std::shared_ptr<LocalizeString>& record = m_records[key];
  if (record) return *record;
  record = std::make_shared<LocalizeString>(m_arena);
  record->setName(m_entries.keys.key(key));
  record->setUseCount(0);
  auto row = std::make_unique<TableRow>();
  row->table = m_table;
  record->setTableRow(std::move(row));
  m_order.push_back(key);
  return *record;
}

void TableRows::addCall(std::string_view key, const CallList::Call& call, const FileUrl& source) {
  const Number number = m_entries.keys.add(key).first;
  LocalizeString& called = record(number);
  called.setUseCount(called.useCount() + 1);
  std::vector<FileUrl>& files = called.filesArray();
  if (files.empty() || !(files.back() == source)) files.push_back(source);
  called.tableRow()->places.push_back({source, call.line, call.column});
  if (call.comment && !call.comment.view().empty()) addComment(number, call.comment.view());
  if (!call.value) return;
  if (number >= m_values.size()) m_values.resize(number + 1);
  if (!m_values[number]) m_values[number] = m_arena->add(call.value.view());
}

/// One key may have a million of them.
void TableRows::addComment(Number key, std::string_view comment) {
  std::vector<std::string>& comments = m_records[key]->commentArray();
  if (!comments.empty() && comments.back() == comment) return;
  const std::uint64_t hash = std::hash<std::string_view>()(comment) * 31 + key;
  if (m_comments.insert(hash).second) comments.emplace_back(comment);
}

bool TableRows::isUnused(Number key, WholeTexts& texts) const {
  const bool isCalled = m_records[key] && m_records[key]->useCount() > 0;
  if (const CatalogEntry* entry = catalogEntry(key)) return entry->row->extractionState == "stale" && !isCalled;
  return m_table->hasCalls && !isCalled && !texts.hold(m_entries.keys.key(key));
}

bool TableRows::hasUnused(WholeTexts& texts) const {
  for (Number key = 0; key < m_records.size(); ++key) {
    if (!catalogEntry(key) && isUnused(key, texts)) return true;
  }
  return false;
}

void TableRows::finish(WholeTexts& texts, StringArray& records) {
  for (Number key = 0; key < m_entries.keys.size(); ++key) record(key);
  for (const Number key : m_order) {
    if (isVariation(key)) continue;
    const Number end = endOfVariations(key);
    for (Number variation = key + 1; variation < end; ++variation) takeFromKey(variation);
    for (Number row = key; row < end; ++row) {
      complete(row, texts);
      records.push_back(std::move(m_records[row]));
    }
  }
}

/// Of those that stand below the key.
TableRows::Number TableRows::endOfVariations(Number key) const {
  Number end = key + 1;
  while (isVariation(end)) ++end;
  return end;
}

/// Who calls a key calls its variations.
void TableRows::takeFromKey(Number key) {
  const LocalizeString& above = *m_records[key - 1];
  LocalizeString& record = *m_records[key];
  record.setUseCount(above.useCount());
  record.setCommentArray(above.commentArray());
  record.setFilesArray(above.filesArray());
  record.tableRow()->places = above.tableRow()->places;
}

void TableRows::complete(Number key, WholeTexts& texts) {
  LocalizeString& record = *m_records[key];
  const bool isCalled = record.useCount() > 0;
  if (!isCalled && key < m_entries.comments.size() && m_entries.comments[key]) {
    record.commentArray().emplace_back(m_entries.comments[key].view());
  }
  LanguagesDict translations = record.takeLanguagesDict();
  translations.reserve(m_highest);
  for (std::size_t file = 0; file < m_table->files.size(); ++file) {
    const StoredText text = m_entries.find(file, key);
    if (text) translations.setStored(m_table->files[file].language, text);
  }
  record.setLanguagesDict(std::move(translations));
  TableRow& row = *record.tableRow();
  row.isUnused = isUnused(key, texts);
  row.isWanted = !row.isUnused && (isCalled || !m_development || m_entries.find(*m_development, key));
  if (const CatalogEntry* entry = catalogEntry(key)) {
    row.catalog = entry->row;
    row.isWanted = !row.isUnused && entry->row->shouldTranslate;
  }
  row.sourceText = sourceText(key);
}

StoredText TableRows::developmentText(Number key) const {
  return m_development ? m_entries.find(*m_development, key) : StoredText();
}

StoredText TableRows::sourceText(Number key) const {
  const CatalogEntry* const entry = catalogEntry(key);
  if (entry && (entry->sourceVaries || isVariation(key))) return entry->sourceText;
  const StoredText development = developmentText(key);
  if (development && !development.view().empty()) return development;
  if (key < m_values.size() && m_values[key]) return m_values[key];
  if (key < m_entries.comments.size() && m_entries.comments[key]) {
    const std::optional<std::string> text = interfaceText(m_entries.keys.key(key), m_entries.comments[key].view());
    if (text && !text->empty()) return m_arena->add(*text);
  }
  return m_records[key]->useCount() > 0 || entry ? m_arena->add(m_records[key]->name()) : StoredText();
}

}  // namespace glossmill
