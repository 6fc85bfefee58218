#include "dialogs/LanguageEntry.h"

#include <algorithm>
#include <string>

namespace glossmill {

namespace {

constexpr std::size_t kThreeLetters = 3;

bool isUsed(LanguageCode code, const LanguageArray& used) {
  return std::any_of(used.begin(), used.end(),
                     [code](const std::shared_ptr<Language>& language) { return language->code() == code; });
}

}  // namespace

Language languageEntry(std::string_view code, std::string_view name, const LanguageArray& used) {
  Language entry;
  entry.setIso639(code);
  entry.setDescription(std::string(name));
  entry.setIsIso639_2(code.size() == kThreeLetters);
  entry.setInUse(isUsed(entry.code(), used));
  return entry;
}

}  // namespace glossmill
