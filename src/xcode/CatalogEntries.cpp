#include "xcode/CatalogEntries.h"

#include <algorithm>
#include <set>
#include <unordered_set>
#include <utility>

#include "platform/ReadBytes.h"
#include "text/PluralCategories.h"
#include "text/Utf16.h"
#include "xcode/VariationShape.h"

namespace glossmill {

namespace {

constexpr std::size_t kShownKeyUnits = 80;  // of a key, in a sentence

class CatalogRows {
 public:
  CatalogRows(const CatalogDocument& document, const StringsTable& table, const std::vector<std::string>& languages,
              TextArena& arena)
      : m_document(document), m_table(table), m_languages(languages), m_arena(arena) {
    m_entries.columns.resize(table.files.size());
    for (std::size_t file = 0; file < table.files.size(); ++file) m_files[table.files[file].language.text()] = file;
  }

  TableEntries make() {
    for (const ValueTree::Number number : m_document.keys()) m_names.insert(m_document.tree().nameOf(number));
    for (const ValueTree::Number number : m_document.keys()) addKey(m_document.keyAt(number));
    return std::move(m_entries);
  }

 private:
  void addKey(const CatalogKey& key) {
    const VariationShape shape(key.units, m_table.development.text(), m_languages);
    for (const Variation& variation : shape.rows()) {
      const std::optional<std::string> name = rowName(key.key, variation);
      if (!name || (!variation.empty() && m_names.contains(*name))) continue;
      const auto [number, isNew] = m_entries.keys.add(*name);
      if (isNew) addRow(number, key, variation, shape);
    }
  }

  void addRow(KeyIndex::Number number, const CatalogKey& key, const Variation& variation, const VariationShape& shape) {
    auto row = std::make_shared<CatalogRow>();
    row->key = key.key;
    row->variation = variation;
    row->extractionState = key.extractionState;
    row->shouldTranslate = key.shouldTranslate;
    for (const std::string& language : shape.languagesWithout(variation)) row->unneeded.emplace_back(language);
    for (const CatalogUnit& unit : key.units) {
      if (unit.variation == variation) addUnit(number, unit, *row);
    }
    CatalogEntry entry{std::move(row), {}, shape.sourceVaries()};
    if (const CatalogUnit* source = shape.sourceOf(variation)) entry.sourceText = m_arena.add(source->value);
    m_entries.catalog.push_back(std::move(entry));
    if (key.comment.empty()) return;
    m_entries.comments.resize(number + 1);
    m_entries.comments[number] = m_arena.add(key.comment);
  }

  void addUnit(KeyIndex::Number number, const CatalogUnit& unit, CatalogRow& row) {
    std::vector<StoredText>& column = m_entries.columns[m_files[unit.language]];
    if (number >= column.size()) column.resize(number + 1);
    column[number] = m_arena.add(unit.value);
    if (const auto state = stateOfName(unit.state)) row.states.emplace_back(LanguageCode(unit.language), *state);
  }

  const CatalogDocument& m_document;
  const StringsTable& m_table;
  const std::vector<std::string>& m_languages;
  TextArena& m_arena;
  TableEntries m_entries;
  std::map<std::string, std::size_t> m_files;  ///< of the table, by language
  std::unordered_set<std::string> m_names;     ///< of the keys
};

std::size_t countOfUnits(const CatalogDocument& document) {
  std::size_t count = 0;
  for (const ValueTree::Number number : document.keys()) count += document.keyAt(number).units.size();
  return count;
}

}  // namespace

CatalogReading::CatalogReading(TableList& tables, const ScanInput& input, const std::function<void(Problem)>& report)
    : m_tables(tables), m_input(input), m_report(report) {
  std::set<std::string> languages(tables.languages.begin(), tables.languages.end());
  for (TableList::Table& table : tables.tables) {
    if (table.table->format != StringsTable::Format::Catalog || input.canceled.isSet()) continue;
    read(table);
    reportTwin(table);
    languages.insert(table.table->development.text());
    for (const StringsTable::File& file : table.table->files) languages.insert(file.language.text());
  }
  tables.languages.assign(languages.begin(), languages.end());
}

void CatalogReading::read(TableList::Table& table) {
  StringsTable& strings = *table.table;
  const FileUrl& file = strings.catalog;
  m_input.listener.happened(StringsFileBegins{file});
  Result<std::string> bytes = readBytes(m_input.files, file);
  if (!bytes) {
    m_input.listener.happened(StringsFileUnread{file, bytes.error()});
    return report(file, {0, 0}, "strings-unread", bytes.error().sentence);
  }
  auto document = std::make_unique<CatalogDocument>(bytes.value());
  m_input.listener.happened(StringsFileRead{file, countOfUnits(*document)});
  const bool hasMistake = document->error().has_value();
  if (hasMistake) report(file, document->error()->place, "strings-syntax", document->error()->sentence);
  for (const CatalogDocument::RepeatedKey& repeated : document->repeatedKeys()) {
    report(file, {repeated.lines.back(), 0}, "repeated-key",
           "The key \"" + clipUtf16(repeated.key, kShownKeyUnits) +
               "\" stands in the catalog more than once; the last one "
               "counts");
  }
  strings.development = LanguageCode(document->sourceLanguage());
  for (const std::string& language : document->languages()) {
    strings.addFile({file, LanguageCode(language), true, {}, hasMistake});
  }
  m_documents[&strings] = std::move(document);
}

/// Xcode takes one or the other.
void CatalogReading::reportTwin(const TableList::Table& table) {
  const auto isTwin = [&table](const TableList::Table& other) {
    return other.table->format == StringsTable::Format::Strings && other.table->name == table.table->name &&
           other.table->directory == table.table->directory;
  };
  if (std::none_of(m_tables.tables.begin(), m_tables.tables.end(), isTwin)) return;
  report(table.table->catalog, {0, 0}, "catalog-and-strings",
         "There are strings files of the same table, which Xcode does not allow; both are read");
}

TableEntries CatalogReading::entriesOf(const TableList::Table& table, TextArena& arena) {
  const auto found = m_documents.find(table.table.get());
  if (found == m_documents.end()) return {};
  TableEntries entries = CatalogRows(*found->second, *table.table, m_tables.languages, arena).make();
  m_documents.erase(found);
  return entries;
}

void CatalogReading::report(const FileUrl& file, TextPlace place, std::string_view kind, std::string text) {
  m_report(
      {file, static_cast<std::uint32_t>(place.line), static_cast<std::uint32_t>(place.column), kind, std::move(text)});
}

}  // namespace glossmill
