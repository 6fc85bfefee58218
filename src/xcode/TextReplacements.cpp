#include "xcode/TextReplacements.h"

#include <algorithm>

namespace glossmill {

std::string withReplacements(std::string_view text, std::vector<TextReplacement> replacements) {
  const auto comesFirst = [](const TextReplacement& a, const TextReplacement& b) {
    return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;
  };
  std::stable_sort(replacements.begin(), replacements.end(), comesFirst);
  std::string result;
  std::size_t at = 0;
  for (const TextReplacement& replacement : replacements) {
    result += text.substr(at, replacement.begin - at);
    result += replacement.text;
    at = replacement.end;
  }
  result += text.substr(at);
  return result;
}

}  // namespace glossmill
