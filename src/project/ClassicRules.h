#pragma once

#include "model/ProjectRules.h"

namespace glossmill {

/// The program's own rules, which are the default: plain text searches whose quirks are kept on purpose.
class ClassicRules : public ProjectRules {
 public:
  void readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                   ScanResult& result) const override;
  ScanEnd readStringsFiles(const ScanInput& input, ScanResult& result) const override;
  std::vector<FileText> planSave(const SaveInput& input) const override;
  bool savesOnlyEdits() const override { return false; }
  bool marksChanged(EditKind kind, const Edit& edit) const override;
};

}  // namespace glossmill
