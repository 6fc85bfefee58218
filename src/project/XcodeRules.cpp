#include "project/XcodeRules.h"

#include "xcode/StringsSave.h"

namespace glossmill {

/// Nothing is found yet; no user can choose these rules.
void XcodeRules::readSources(const FileUrl&, const ScanInput&, ScanMemory&, ScanResult&) const {}

ScanEnd XcodeRules::readStringsFiles(const ScanInput&, ScanResult&) const {
  return ScanEnd::Complete;
}

std::vector<FileText> XcodeRules::planSave(const SaveInput& input) const {
  return planStringsSave(input);
}

bool XcodeRules::marksChanged(EditKind, const Edit&) const {
  return true;
}

}  // namespace glossmill
