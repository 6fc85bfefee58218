#include "xcode/LanguageDirectories.h"

#include <algorithm>
#include <utility>

#include "model/OldLanguageNames.h"

namespace glossmill {

namespace {

constexpr std::string_view kBase = "Base";

std::string_view codeOrName(std::string_view name) {
  const std::string_view code = codeOfOldName(name);
  return code.empty() ? name : code;
}

}  // namespace

LanguageDirectories::LanguageDirectories(std::vector<std::string> names, std::string_view development)
    : m_names(std::move(names)) {
  std::sort(m_names.begin(), m_names.end());
  // The spelling of the project, where a directory of that name has a column of its own.
  m_development = holds(development) ? std::string(languageOf(development)) : std::string(codeOrName(development));
}

bool LanguageDirectories::holds(std::string_view name) const {
  return std::binary_search(m_names.begin(), m_names.end(), name);
}

std::string_view LanguageDirectories::languageOf(std::string_view name) const {
  const std::string_view code = codeOfOldName(name);
  if (!code.empty()) return holds(code) ? name : code;
  if (name != kBase || m_development.empty()) return name;
  const bool isTaken = std::any_of(m_names.begin(), m_names.end(), [this](const std::string& other) {
    return other != kBase && languageOf(other) == m_development;
  });
  return isTaken ? name : std::string_view(m_development);
}

bool LanguageDirectories::isOwnLanguage(std::string_view name) const {
  return name != kBase && languageOf(name) == codeOrName(name);
}

}  // namespace glossmill
