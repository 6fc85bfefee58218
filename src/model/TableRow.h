#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/CatalogRow.h"
#include "model/StringsTable.h"
#include "model/TextArena.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// Where a source calls a text: the place of the routine's name.
struct SourcePlace {
  FileUrl file;
  std::uint32_t line = 0;    ///< from 1
  std::uint32_t column = 0;  ///< in UTF-16 units from 1
};

/// What xcode's rules know of a string beside what every string has.
struct TableRow {
  std::shared_ptr<const StringsTable> table;  ///< never null
  std::vector<SourcePlace> places;            ///< in the order of the sources
  StoredText sourceText;                      ///< what is to be translated; none where nobody knows. Lies in the arena
                                              ///< of the string's translations
  bool isUnused = false;                      ///< nothing in the sources holds the key
  bool isWanted = true;                       ///< a missing translation counts as missing, and may be filled
  std::shared_ptr<const CatalogRow> catalog;  ///< null but for the rows of string catalogs

  /// The same for one language.
  bool isWantedIn(LanguageCode language) const { return isWanted && (!catalog || catalog->isNeededIn(language)); }
};

}  // namespace glossmill
