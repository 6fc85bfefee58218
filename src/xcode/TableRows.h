#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "model/LocalizeString.h"
#include "xcode/CallList.h"
#include "xcode/TableEntries.h"
#include "xcode/WholeTexts.h"

namespace glossmill {

/// The rows of one table while they are made: those that calls name, in the order of the first of these, then the
/// others in the order of the files.
class TableRows {
 public:
  /// `arena` holds the texts of the entries, and keeps those of the rows.
  TableRows(std::shared_ptr<StringsTable> table, TableEntries entries, std::shared_ptr<TextArena> arena);

  /// Those of the entries and of the calls so far.
  const KeyIndex& keys() const { return m_entries.keys; }
  bool holdsKey(std::string_view key) const { return m_entries.keys.find(key).has_value(); }
  /// Calls come source by source.
  void addCall(std::string_view key, const CallList::Call& call, const FileUrl& source);

  /// Whether a row would be unused if nothing but these texts held keys.
  bool hasUnused(WholeTexts& texts) const;

  /// Adds the rows to `records`; nothing can be asked afterwards. Those that no call names are unused unless `texts`
  /// hold their keys.
  void finish(WholeTexts& texts, StringArray& records);

 private:
  using Number = KeyIndex::Number;

  LocalizeString& record(Number key);
  void addComment(Number key, std::string_view comment);
  bool isUnused(Number key, WholeTexts& texts) const;
  StoredText developmentText(Number key) const;
  StoredText sourceText(Number key) const;
  void complete(Number key, WholeTexts& texts);
  const CatalogEntry* catalogEntry(Number key) const {
    return key < m_entries.catalog.size() ? &m_entries.catalog[key] : nullptr;
  }
  bool isVariation(Number key) const { return catalogEntry(key) && !catalogEntry(key)->row->variation.empty(); }
  Number endOfVariations(Number key) const;
  void takeFromKey(Number key);

  std::shared_ptr<StringsTable> m_table;
  TableEntries m_entries;
  std::shared_ptr<TextArena> m_arena;
  std::optional<std::size_t> m_development;  ///< number of the file of that language
  LanguageCode m_highest;                    ///< of the files' languages, by number
  StringArray m_records;                     ///< by key; null until there is one
  std::vector<StoredText> m_values;          ///< the default values of calls, by key
  std::vector<Number> m_order;               ///< of the rows
  std::unordered_set<std::uint64_t> m_comments;
};

}  // namespace glossmill
