#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "checks/SourceTexts.h"

namespace glossmill {

/// Rows that have one source text, for each such text.
using SameSources = std::vector<std::vector<std::uint32_t>>;

SameSources sameSources(const SourceTexts& sources, std::size_t rows);

/// A finding about a row.
struct RowFinding {
  Finding finding;
  std::size_t row = 0;
};

/// Rows of one language whose translation is another than most rows with their source text have.
std::vector<RowFinding> inconsistentFindings(const CheckedLanguage& language, const SameSources& groups);

}  // namespace glossmill
