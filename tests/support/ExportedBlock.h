#pragma once

#include <string>

#include "exchange/ExportText.h"
#include "exchange/TableText.h"
#include "project/ExportUnits.h"

namespace glossmill {

/// The unit that an export in the program's own text makes of a record.
inline std::optional<ExchangeUnit> briefUnit(const LocalizeString& record, std::int64_t number, LanguageCode language,
                                             ExportScope scope) {
  UnitMaker maker;
  maker.languages = {language};
  maker.scope = scope;
  maker.isBrief = true;
  return maker.unitOf(record, number);
}

/// Appends the block of a record, or nothing when the scope leaves it out.
inline void appendExportBlock(std::string& text, const LocalizeString& record, std::int64_t number,
                              LanguageCode language, ExportScope scope) {
  if (const auto unit = briefUnit(record, number, language, scope)) appendExportBlock(text, *unit);
}

inline void appendTableBlock(std::string& text, const LocalizeString& record, std::int64_t number,
                             LanguageCode language, ExportScope scope) {
  if (const auto unit = briefUnit(record, number, language, scope)) appendTableBlock(text, *unit);
}

}  // namespace glossmill
