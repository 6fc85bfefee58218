#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ImportText.h"
#include "model/ExportScope.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// A form in which one language goes to a translator and comes back.
struct ExchangeFormat {
  std::string_view name;
  std::span<const std::string_view> fileTypes;  ///< extensions of files to read, as they are offered
  /// What every text begins with.
  std::string_view start;
  /// Appends the `number`th record of the list to a text, or nothing when `scope` leaves it out.
  void (*write)(std::string& text, const LocalizeString& record, std::int64_t number, LanguageCode language,
                ExportScope scope);
  /// Takes the translations out of a whole text.
  ImportTable (*read)(std::string_view text);
};

/// All formats; the first is the one that is taken without a choice.
std::span<const ExchangeFormat> exchangeFormats();

/// The one for projects with tables.
const ExchangeFormat& tableFormat();

}  // namespace glossmill
