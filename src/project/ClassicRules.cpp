#include "project/ClassicRules.h"

#include "scan/ParseFileList.h"
#include "scan/ParseLocalizableStrings.h"

namespace glossmill {

void ClassicRules::readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                               ScanResult& result) const {
  parseFileList(directory, input, memory, result);
}

ScanEnd ClassicRules::readStringsFiles(const ScanInput& input, ScanResult& result) const {
  return parseLocalizableStringsList(input, result);
}

}  // namespace glossmill
