#include "formats/XliffFiles.h"

#include <unordered_map>

#include "formats/XmlEscapes.h"

namespace glossmill {

std::vector<XliffFile> filesOf(const std::vector<const ExchangeUnit*>& units) {
  std::vector<XliffFile> files;
  std::unordered_map<std::string_view, std::size_t> numbers;
  for (const ExchangeUnit* unit : units) {
    const auto [number, isNew] = numbers.try_emplace(unit->file, files.size());
    if (isNew) files.push_back({unit->file, {}});
    files[number->second].units.push_back(unit);
  }
  return files;
}

std::string sourceCodeOf(const ExchangeDocument& document) {
  return document.sourceLanguage.empty() ? "en" : xmlLanguage(document.sourceLanguage);
}

std::string targetCodeOf(const ExchangeDocument& document) {
  return document.languages.empty() ? "" : xmlLanguage(document.languages.front());
}

}  // namespace glossmill
