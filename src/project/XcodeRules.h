#pragma once

#include "model/ProjectRules.h"

namespace glossmill {

/// Projects as Xcode's own tools understand them, saved so that only what was edited changes.
class XcodeRules : public ProjectRules {
 public:
  void readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                   ScanResult& result) const override;
  ScanEnd readStringsFiles(const ScanInput& input, ScanResult& result) const override;
  std::unique_ptr<LanguageTexts> languageTexts(const StringArray& records,
                                               const LanguageArray& languages) const override;
  bool marksChanged(EditKind kind, const Edit& edit) const override;
};

}  // namespace glossmill
