#include "project/ClassicRules.h"

#include "edit/SavePlan.h"
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

std::vector<FileText> ClassicRules::planSave(const SaveInput& input) const {
  std::vector<LanguageCode> codes;
  for (const std::shared_ptr<Language>& language : input.languages) codes.push_back(language->code());
  return glossmill::planSave(std::make_shared<StringsFileTexts>(input.records, codes), input.languages);
}

/// Deliberately (rule 31), a text that replaces another does not count, and nothing that was imported.
bool ClassicRules::marksChanged(EditKind kind, const Edit& edit) const {
  return kind != EditKind::Import && edit.entryDifference() != 0;
}

}  // namespace glossmill
