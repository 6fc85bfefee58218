#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "checks/CheckedProject.h"
#include "checks/CheckedRow.h"

namespace glossmill {

/// What a row's translations are compared with: `development`, its text in the language that is translated from; else
/// what its table says; else its key, unless that is only a name: it has neither blank nor percent sign, or no
/// specifier while several languages agree on some. Nothing where nobody knows, as of a text without a table that was
/// cut off behind a backslash. Valid as long as what it is taken from.
std::optional<std::string_view> sourceTextOf(const LocalizeString& record, std::string_view development,
                                             const EachTranslation& translations);

/// The translations of a record, which outlives it.
EachTranslation translationsOf(const LocalizeString& record);

/// Those of a row of the project, which outlives it.
EachTranslation translationsOf(const CheckedProject& project, std::size_t row);

/// The source texts of all rows of a project, which outlives them.
class SourceTexts {
 public:
  explicit SourceTexts(const CheckedProject& project);

  std::optional<std::string_view> of(std::size_t row) const {
    return m_texts[row].data() ? std::optional(m_texts[row]) : std::nullopt;
  }
  /// The code of the language that a row is translated from.
  LanguageCode languageOf(std::size_t row) const;

 private:
  const CheckedProject& m_project;
  std::vector<std::string_view> m_texts;  ///< by row; without data where there is none
};

}  // namespace glossmill
