#include "xcode/LanguageDirectories.h"

#include <algorithm>
#include <utility>

namespace glossmill {

namespace {

constexpr std::string_view kBase = "Base";

constexpr std::pair<std::string_view, std::string_view> kOldNames[] = {
    {"Arabic", "ar"},   {"Catalan", "ca"}, {"Chinese", "zh"},   {"Croatian", "hr"},  {"Czech", "cs"},
    {"Danish", "da"},   {"Dutch", "nl"},   {"English", "en"},   {"Finnish", "fi"},   {"French", "fr"},
    {"German", "de"},   {"Greek", "el"},   {"Hebrew", "he"},    {"Hungarian", "hu"}, {"Italian", "it"},
    {"Japanese", "ja"}, {"Korean", "ko"},  {"Norwegian", "no"}, {"Polish", "pl"},    {"Portuguese", "pt"},
    {"Romanian", "ro"}, {"Russian", "ru"}, {"Slovak", "sk"},    {"Spanish", "es"},   {"Swedish", "sv"},
    {"Thai", "th"},     {"Turkish", "tr"}, {"Ukrainian", "uk"},
};

std::string_view codeOrName(std::string_view name) {
  const std::string_view code = codeOfOldName(name);
  return code.empty() ? name : code;
}

}  // namespace

std::string_view codeOfOldName(std::string_view name) {
  const auto found =
      std::find_if(std::begin(kOldNames), std::end(kOldNames), [name](const auto& old) { return old.first == name; });
  return found == std::end(kOldNames) ? std::string_view() : found->second;
}

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
