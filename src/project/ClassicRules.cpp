#include "project/ClassicRules.h"

#include "scan/ParseFileList.h"
#include "scan/ParseLocalizableStrings.h"
#include "strings/StringsFileWriter.h"

namespace glossmill {

void ClassicRules::readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                               ScanResult& result) const {
  parseFileList(directory, input, memory, result);
}

ScanEnd ClassicRules::readStringsFiles(const ScanInput& input, ScanResult& result) const {
  return parseLocalizableStringsList(input, result);
}

std::unique_ptr<LanguageTexts> ClassicRules::languageTexts(const StringArray& records,
                                                           const LanguageArray& languages) const {
  std::vector<LanguageCode> codes;
  for (const std::shared_ptr<Language>& language : languages) codes.push_back(language->code());
  return std::make_unique<StringsFileTexts>(records, codes);
}

/// Deliberately (rule 31), a text that replaces another does not count, and nothing that was imported.
bool ClassicRules::marksChanged(EditKind kind, const Edit& edit) const {
  return kind != EditKind::Import && edit.entryDifference() != 0;
}

}  // namespace glossmill
