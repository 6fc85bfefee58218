#pragma once

#include <memory>
#include <vector>

#include "model/Language.h"
#include "model/StringListBuilder.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// What a scan gathers. Its background thread fills it; the main thread gets it at the end.
struct ScanResult {
  std::vector<FileUrl> fileList;  ///< scanned sources, in the order of the walk
  StringListBuilder stringList;
  std::shared_ptr<LanguageArray> languagesList = std::make_shared<LanguageArray>();
};

}  // namespace glossmill
