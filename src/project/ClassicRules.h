#pragma once

#include "model/ProjectRules.h"

namespace glossmill {

/// The program's own rules, which are the default: plain text searches whose quirks are kept on purpose.
class ClassicRules : public ProjectRules {
 public:
  void readSources(const FileUrl& directory, const ScanInput& input, ScanMemory& memory,
                   ScanResult& result) const override;
  ScanEnd readStringsFiles(const ScanInput& input, ScanResult& result) const override;
  std::unique_ptr<LanguageTexts> languageTexts(const StringArray& records,
                                               const LanguageArray& languages) const override;
  bool marksChanged(EditKind kind, const Edit& edit) const override;
};

}  // namespace glossmill
