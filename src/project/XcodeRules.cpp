#include "project/XcodeRules.h"

#include "strings/StringsFileWriter.h"

namespace glossmill {

/// Nothing is found yet; no user can choose these rules.
void XcodeRules::readSources(const FileUrl&, const ScanInput&, ScanMemory&, ScanResult&) const {}

ScanEnd XcodeRules::readStringsFiles(const ScanInput&, ScanResult&) const {
  return ScanEnd::Complete;
}

std::unique_ptr<LanguageTexts> XcodeRules::languageTexts(const StringArray&, const LanguageArray&) const {
  return std::make_unique<StringsFileTexts>(StringArray(), std::vector<LanguageCode>());
}

bool XcodeRules::marksChanged(EditKind, const Edit&) const {
  return true;
}

}  // namespace glossmill
