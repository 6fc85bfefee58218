#pragma once

#include <string_view>
#include <vector>

#include "checks/Finding.h"

namespace glossmill {

/// A character of a text and where it stands.
struct Character {
  char32_t value = 0;
  TextRange range;
};

/// The characters of a text. In a raw text "\n", "\r" and "\t" are one each, with the value of what they mean.
std::vector<Character> charactersOf(std::string_view text, TextForm form);

/// Those of the last 32 bytes, for whoever looks at the end of a text only.
std::vector<Character> lastCharactersOf(std::string_view text, TextForm form);

bool isLineBreak(char32_t character);
/// Blanks of all widths, no-break ones too, tabs and line breaks.
bool isWhiteSpace(char32_t character);
bool isNoBreakSpace(char32_t character);

/// What Xcode writes into new interface files, and nobody ever sees.
bool isXcodePlaceholder(std::string_view text);

/// The first part of a language's code: "pt" of "pt-BR" and of "pt_BR".
std::string_view baseOfCode(std::string_view code);

}  // namespace glossmill
