#pragma once

#include <cstdint>
#include <string>

#include "model/ExportScope.h"
#include "model/LocalizeString.h"

namespace glossmill {

/// What every export text begins with.
inline constexpr const char* kExportTextStart = "\n";

/// Appends the block of one record, the `number`th of its list: number line, comment, key and translation, which is
/// empty without an entry. Nothing is escaped. A record that `scope` leaves out
/// appends nothing, but is counted (rule 48).
void appendExportBlock(std::string& text, const LocalizeString& record, std::int64_t number, LanguageCode language,
                       ExportScope scope);

}  // namespace glossmill
