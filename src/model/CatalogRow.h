#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/LanguageCode.h"
#include "model/Variation.h"

namespace glossmill {

/// What a string catalog says of one of its texts.
enum class TextState : std::uint8_t { New, Translated, NeedsReview, Stale };

/// As catalogs spell it: "new", "translated", "needs_review", "stale".
std::string_view nameOfState(TextState state);
/// Nothing for any other word.
std::optional<TextState> stateOfName(std::string_view name);

/// What is known of a row of a string catalog beside what every row of a table has.
struct CatalogRow {
  std::string key;              ///< that the catalog has it under
  Variation variation;          ///< empty for the text of the key itself
  std::string extractionState;  ///< "manual", "stale", …; "" for none
  bool shouldTranslate = true;
  std::vector<std::pair<LanguageCode, TextState>> states;  ///< when the project was read
  std::vector<LanguageCode> unneeded;                      ///< languages that have other texts in its place

  std::optional<TextState> stateIn(LanguageCode language) const;
  bool isNeededIn(LanguageCode language) const {
    return std::find(unneeded.begin(), unneeded.end(), language) == unneeded.end();
  }
};

}  // namespace glossmill
