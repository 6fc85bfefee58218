#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// Some bytes of a text that others come in place of.
struct TextReplacement {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::string text;
};

/// The text with all of them done. They do not overlap; those that begin at one place are done in their order, which
/// only the last of them may take bytes away.
std::string withReplacements(std::string_view text, std::vector<TextReplacement> replacements);

}  // namespace glossmill
