#pragma once

namespace glossmill {

/// Letters, digits and the underscore; of other scripts everything but known blanks and punctuation.
bool isWordCharacter(char32_t character);
/// Blanks of all widths, tabs and line breaks.
bool isBlankCharacter(char32_t character);

}  // namespace glossmill
