#include "cli/shell/Completions.h"

namespace glossmill {

std::string shellQuoted(std::string_view text) {
  std::string quoted = "'";
  for (const char byte : text) quoted += byte == '\'' ? "'\\''" : std::string(1, byte);
  return quoted + "'";
}

std::string joined(const std::vector<std::string>& words, std::string_view separator) {
  std::string text;
  for (const std::string& word : words) text.append(text.empty() ? "" : separator).append(word);
  return text;
}

}  // namespace glossmill
