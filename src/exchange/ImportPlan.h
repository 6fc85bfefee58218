#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "exchange/ImportItem.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// The languages of the project that a document's texts go to, in the order of the document's; nothing where one is
/// left out.
using ImportLanguages = std::vector<std::optional<LanguageCode>>;

struct ImportWish {
  ImportLanguages languages;
  ImportScope scope = ImportScope::All;
  bool takesUnsure = false;
};

/// What an import makes of the strings of a project: a list to look at and to choose from, and the edits that it comes
/// to. Changes nothing itself. Empty texts of a file change nothing and are not listed; the last of several texts for
/// one string counts.
class ImportPlan {
 public:
  ImportPlan() = default;
  ImportPlan(ExchangeDocument document, const StringArray& records, ImportWish wish);

  /// First those of the records, in their order, then the unknown ones, in the file's.
  const std::vector<ImportItem>& items() const { return m_items; }
  std::vector<ImportItem>& items() { return m_items; }
  /// The items of a record, by its place in the list.
  std::span<const ImportItem> itemsOf(std::size_t record) const;
  /// Those of keys that the project does not have, each once.
  std::size_t unknownKeys() const { return m_unknownKeys; }

  /// The edits that are chosen.
  std::vector<Edit> edits() const;

  const std::vector<RejectedLine>& rejected() const { return m_rejected; }  ///< with those of the file
  const std::vector<ImportNote>& notes() const { return m_notes; }
  void addNote(ImportNote note) { m_notes.push_back(std::move(note)); }

 private:
  /// Which of a unit's texts a key has in a language.
  struct Place {
    std::size_t unit = 0;
    std::size_t text = 0;
  };
  struct Wanted {
    std::vector<std::optional<Place>> places;  ///< by language of the document
    std::size_t records = 0;                   ///< that have the key
  };

  void collect(bool hasTables);
  void add(std::size_t unit, const std::string& key);
  void countRecords(const StringArray& records);
  void rejectAmbiguous();
  Wanted* wantedFor(const LocalizeString& record);
  void addItems(const std::shared_ptr<LocalizeString>& record, const Wanted& wanted);
  void addUnknown();
  ImportItem itemAt(const Place& place, LanguageCode language) const;

  ExchangeDocument m_document;
  ImportWish m_wish;
  std::vector<RejectedLine> m_rejected;
  std::vector<ImportNote> m_notes;
  std::vector<ImportItem> m_items;
  std::vector<std::size_t> m_firstItems;  ///< of each record, and the end of the last
  std::size_t m_unknownKeys = 0;
  /// By importKey(); of units that name no table with an empty one.
  std::unordered_map<std::string, Wanted> m_wanted;
  std::vector<std::string> m_keys;  ///< of m_wanted, in the order of the units
};

}  // namespace glossmill
