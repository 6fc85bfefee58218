#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "checks/SourceTexts.h"

namespace glossmill {

/// A source text that several rows have.
struct SameSource {
  std::string_view source;
  std::vector<std::uint32_t> rows;
};
using SameSources = std::vector<SameSource>;

SameSources sameSources(const SourceTexts& sources, std::size_t rows);

/// A finding about a row.
struct RowFinding {
  Finding finding;
  std::size_t row = 0;
};

/// Rows of one language whose translation is another than most rows with their source text have. What was left as the
/// source text is no translation here, and the width of blanks does not matter.
std::vector<RowFinding> inconsistentFindings(const CheckedLanguage& language, const SameSources& groups);

}  // namespace glossmill
