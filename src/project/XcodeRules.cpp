#include "project/XcodeRules.h"

#include <utility>

#include "xcode/CatalogSave.h"
#include "xcode/StringsSave.h"
#include "xcode/XcodeScan.h"

namespace glossmill {

void XcodeRules::readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                             ScanResult& result) const {
  readXcodeSources(directory, input, memory, result);
}

/// Also a scan that was canceled is complete, so that its end is heard of.
ScanEnd XcodeRules::readStringsFiles(const ScanInput& input, ScanResult& result) const {
  readXcodeStrings(input, result);
  return ScanEnd::Complete;
}

std::vector<FileText> XcodeRules::planSave(const SaveInput& input) const {
  std::vector<FileText> plan = planStringsSave(input);
  for (FileText& catalog : planCatalogSave(input)) plan.push_back(std::move(catalog));
  return plan;
}

bool XcodeRules::marksChanged(EditKind, const Edit&) const {
  return true;
}

}  // namespace glossmill
