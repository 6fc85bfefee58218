#include "exchange/ExportText.h"

namespace glossmill {

void appendExportBlock(std::string& text, const LocalizeString& record, std::int64_t number, LanguageCode language,
                       ExportScope scope) {
  const std::optional<std::string_view> translation = record.languagesDict().find(language);
  if (translation && scope == ExportScope::Untranslated) return;
  text += "--- " + std::to_string(number) + " ---\n/* ";
  text += record.comment();
  text += " */\n";
  text += record.name();
  text += '\n';
  text += translation.value_or(std::string_view());
  text += "\n\n";
}

}  // namespace glossmill
