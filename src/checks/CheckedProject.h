#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "checks/Finding.h"
#include "model/Language.h"
#include "model/LocalizeString.h"
#include "model/Problem.h"
#include "model/ProjectOptions.h"
#include "model/ScanReport.h"
#include "model/StringsTable.h"

namespace glossmill {

/// A language and all its translations.
struct CheckedLanguage {
  LanguageCode code;
  FileUrl file;                          ///< of the only table; empty under rules with tables, or without a file
  std::optional<std::uint64_t> entries;  ///< that stood in that file when it was read; nothing: nobody knows
  std::vector<StoredText> translations;  ///< one for each record, in their order; no text where there is no entry
};

/// What the checks know of an open project: a copy of its values, which stays as it is while the project is edited.
/// Made on the main thread; may then be read on any other, also beside edits. The project's texts outlive it.
struct CheckedProject {
  FileUrl directory;
  RuleSet rules = RuleSet::Classic;
  StringArray records;  ///< of these only names, comments and rows are looked at
  std::vector<CheckedLanguage> languages;
  std::vector<StringsTable> tables;
  std::vector<Problem> problems;
  std::vector<FileFindings> leftOut;  ///< by file
  std::vector<FileUrl> sources;
  LanguageCode sourceLanguage;  ///< that is translated from; the empty code where nobody knows

  TextForm form() const { return rules == RuleSet::Classic ? TextForm::Raw : TextForm::Values; }
};

}  // namespace glossmill
