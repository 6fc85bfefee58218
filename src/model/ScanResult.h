#pragma once

#include <memory>
#include <vector>

#include "model/Language.h"
#include "model/Problem.h"
#include "model/StringListBuilder.h"
#include "model/StringsTable.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// What a set of rules hands on from the first phase of a scan to the second.
class ScanState {
 public:
  virtual ~ScanState() = default;
};

/// What a scan gathers. Its background thread fills it; the main thread gets it at the end.
struct ScanResult {
  std::vector<FileUrl> fileList;  ///< scanned sources, in the order of the walk
  StringListBuilder stringList;
  std::shared_ptr<LanguageArray> languagesList = std::make_shared<LanguageArray>();

  // Filled by xcode's rules only.
  std::vector<FileUrl> packages;
  StringsTables tables;  ///< in the order of their ids
  std::vector<Problem> problems;
  std::unique_ptr<ScanState> state;
};

}  // namespace glossmill
