#include "model/OldLanguageNames.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace glossmill {

namespace {

constexpr std::pair<std::string_view, std::string_view> kOldNames[] = {
    {"Arabic", "ar"},   {"Catalan", "ca"}, {"Chinese", "zh"},   {"Croatian", "hr"},  {"Czech", "cs"},
    {"Danish", "da"},   {"Dutch", "nl"},   {"English", "en"},   {"Finnish", "fi"},   {"French", "fr"},
    {"German", "de"},   {"Greek", "el"},   {"Hebrew", "he"},    {"Hungarian", "hu"}, {"Italian", "it"},
    {"Japanese", "ja"}, {"Korean", "ko"},  {"Norwegian", "no"}, {"Polish", "pl"},    {"Portuguese", "pt"},
    {"Romanian", "ro"}, {"Russian", "ru"}, {"Slovak", "sk"},    {"Spanish", "es"},   {"Swedish", "sv"},
    {"Thai", "th"},     {"Turkish", "tr"}, {"Ukrainian", "uk"},
};

}  // namespace

std::string_view codeOfOldName(std::string_view name) {
  const auto found =
      std::find_if(std::begin(kOldNames), std::end(kOldNames), [name](const auto& old) { return old.first == name; });
  return found == std::end(kOldNames) ? std::string_view() : found->second;
}

}  // namespace glossmill
