#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scan/SourceScanner.h"

namespace glossmill {

/// What the scanner finds in a source, the rejected calls gathered.
struct ScannedSource {
  explicit ScannedSource(std::string_view text, const CancelFlag& canceled = CancelFlag()) {
    SourceScan scan = scanSource(text, canceled, [this](std::string_view excerpt, CallRejection reason) {
      badCalls.emplace_back(excerpt);
      reasons.push_back(reason);
    });
    strings = std::move(scan.strings);
    wasCanceled = scan.canceled;
  }

  std::vector<SourceString> strings;
  std::vector<std::string> badCalls;
  std::vector<CallRejection> reasons;  ///< of the above
  bool wasCanceled = false;
};

}  // namespace glossmill
