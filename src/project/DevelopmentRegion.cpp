#include "project/DevelopmentRegion.h"

namespace glossmill {

namespace {

std::string_view withoutAround(std::string_view text, std::string_view characters) {
  const std::size_t begin = text.find_first_not_of(characters);
  if (begin == text.npos) return {};
  return text.substr(begin, text.find_last_not_of(characters) + 1 - begin);
}

}  // namespace

std::string_view developmentRegionOf(std::string_view projectFile) {
  constexpr std::string_view kName = "developmentRegion";
  constexpr std::string_view kBlanks = " \t\r\n";
  for (std::size_t at = projectFile.find(kName); at != projectFile.npos; at = projectFile.find(kName, at)) {
    at += kName.size();
    const std::size_t equals = projectFile.find_first_not_of(kBlanks, at);
    if (equals == projectFile.npos || projectFile[equals] != '=') continue;
    const std::string_view value = projectFile.substr(equals + 1, projectFile.find(';', equals) - (equals + 1));
    return withoutAround(withoutAround(value, kBlanks), "\"");
  }
  return {};
}

}  // namespace glossmill
