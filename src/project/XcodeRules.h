#pragma once

#include "model/ProjectRules.h"

namespace glossmill {

/// Projects as Xcode's own tools understand them, saved so that only what was edited changes.
class XcodeRules : public ProjectRules {
 public:
  void readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                   ScanResult& result) const override;
  ScanEnd readStringsFiles(const ScanInput& input, ScanResult& result) const override;
  std::vector<FileText> planSave(const SaveInput& input) const override;
  bool savesOnlyEdits() const override { return true; }
  bool marksChanged(EditKind kind, const Edit& edit) const override;
};

}  // namespace glossmill
