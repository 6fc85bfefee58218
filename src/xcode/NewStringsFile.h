#pragma once

#include "model/StringsTable.h"
#include "xcode/StringsDocument.h"

namespace glossmill {

/// Where the file of a table goes for a language that it has none for: the `.lproj` directory that other tables beside
/// it have for the language, else one of its code. The table has a directory.
FileUrl newStringsFile(const StringsTable& table, LanguageCode language, const StringsTables& tables);

/// A file without entries that takes encoding and line ends from the development language's, which may be null. Not an
/// encoding that only the project's entry for a file tells, as a new file has none yet.
StringsDocument newStringsDocument(const StringsDocument* development);

}  // namespace glossmill
