#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "model/Edit.h"
#include "model/LocalizeString.h"
#include "search/ReplacementText.h"
#include "search/TextFinder.h"

namespace glossmill {

/// What is to be replaced by what, and where.
struct ReplaceWish {
  FindWish find;
  std::string replacement;
  std::vector<LanguageCode> languages;  ///< whose translations are looked at, in this order
  std::optional<std::string> table;     ///< the id of the only one that is looked at
};

/// A translation that would change.
struct Replacement {
  Edit edit;                     ///< a translation of which nothing is left goes
  std::vector<TextRange> found;  ///< in what there is
  std::vector<TextRange> put;    ///< in what would be there, one for each that was found
};

/// All translations that a replacement would change, record by record, found bit by bit so that a window stays alive
/// meanwhile and a cancel is to stop asking. Nothing changes before the edits are applied. Main thread.
class ReplacePlan {
 public:
  /// An error says in a sentence what is wrong with the wish.
  static Result<ReplacePlan> of(StringArray records, const ReplaceWish& wish);

  /// Looks at so many more records. False when there is none left.
  bool goOn(std::size_t records);
  std::size_t seenRecords() const { return m_next; }
  std::size_t allRecords() const { return m_records.size(); }
  const std::vector<Replacement>& replacements() const { return m_replacements; }

 private:
  ReplacePlan(StringArray records, const ReplaceWish& wish, TextFinder finder, ReplacementText replacement);
  void look(const std::shared_ptr<LocalizeString>& record);
  void look(const std::shared_ptr<LocalizeString>& record, LanguageCode language, const std::string& text);

  StringArray m_records;
  std::vector<LanguageCode> m_languages;
  std::optional<std::string> m_table;
  TextFinder m_finder;
  ReplacementText m_replacement;
  std::size_t m_next = 0;
  std::vector<Replacement> m_replacements;
};

/// Those edits of the replacements that still find the text that they replace.
std::vector<Edit> editsThatFit(const std::vector<Replacement>& replacements);

}  // namespace glossmill
