#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ExchangeUnit.h"
#include "model/ExportScope.h"
#include "model/Language.h"
#include "model/LocalizeString.h"
#include "model/ProjectOptions.h"

namespace glossmill {

/// What a project says of the texts that are translated from.
struct TranslatedFrom {
  FileUrl directory;        ///< of the project
  LanguageCode language;    ///< the empty code where nobody knows it
  std::string stringsFile;  ///< path of its strings file, for strings without a table
};

/// `projectFile` is the text of the project file; empty where there is none.
TranslatedFrom translatedFrom(const FileUrl& directory, const ProjectOptions& options, std::string_view projectFile,
                              const LanguageArray& languages, const StringsTables& tables);

/// Makes units of strings.
struct UnitMaker {
  TranslatedFrom sources;
  std::vector<LanguageCode> languages;
  ExportScope scope = ExportScope::AllStrings;
  bool isBrief = false;  ///< only what the program's own text holds

  /// Nothing for a string that the scope leaves out.
  std::optional<ExchangeUnit> unitOf(const LocalizeString& record, std::int64_t number) const;

 private:
  bool isWanted(const LocalizeString& record) const;
  void addDetails(ExchangeUnit& unit, const LocalizeString& record) const;
};

}  // namespace glossmill
