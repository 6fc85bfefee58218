#pragma once

#include <vector>

#include "checks/CheckedRow.h"

namespace glossmill {

/// A translation that equals a source text of two words or more, in another language than the source text's. What reads
/// like a sentence is one in any case; the rest may be a name, and is found only where at least two other languages,
/// and more than leave it as it is, have another text.
std::vector<Finding> identicalFindings(const CheckedText& text, const EachTranslation& translations);

}  // namespace glossmill
