#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/SourceString.h"
#include "platform/CancelFlag.h"

namespace glossmill {

/// What one source file holds, in the order of its calls.
struct SourceScan {
  std::vector<SourceString> strings;
  std::vector<std::string> badCalls;  ///< for each badly formatted call the first 80 UTF-16 units from its name on
  bool canceled = false;              ///< then nothing else counts
};

/// Finds every "NSLocalizedString", in any case and wherever it stands, takes the parenthesised text after it, and of
/// that the first two @-literals. A plain text match: comments, preprocessor lines, character literals and escapes mean
/// nothing to it, and a quote ends a literal also behind a backslash. Linear in the length of the text, however calls
/// are nested.
SourceScan scanSource(std::string_view text, const CancelFlag& canceled);

}  // namespace glossmill
