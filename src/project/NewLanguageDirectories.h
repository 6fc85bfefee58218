#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/StringsTable.h"

namespace glossmill {

/// Whether texts of the table are wanted in several languages: it has calls, or files of two languages.
bool isTranslated(const StringsTable& table);

/// The directories that a new language gets in a project with tables, each once: one beside those of the other
/// languages for every table that is translated, having calls or files of two languages; or for the tables named.
std::vector<FileUrl> newLanguageDirectories(const StringsTables& tables, std::string_view code,
                                            const std::vector<std::string>& tableIds);

/// "pt" of "pt-BR", "pt_BR" and "pt".
std::string_view languageWithoutRegion(std::string_view code);

}  // namespace glossmill
