#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "model/ScanEvents.h"
#include "model/SourceString.h"
#include "platform/CancelFlag.h"

namespace glossmill {

/// What one source file holds, in the order of its calls.
struct SourceScan {
  std::vector<SourceString> strings;
  bool canceled = false;  ///< then nothing else counts
};

/// Takes the source from a badly formatted call's name on, 80 UTF-16 units at most, and what the call lacks.
using RejectedCallSink = std::function<void(std::string_view excerpt, CallRejection reason)>;

/// Finds every "NSLocalizedString", in any case and wherever it stands, takes the parenthesised text after it, and of
/// that the first two @-literals. A plain text match: comments, preprocessor lines, character literals and escapes mean
/// nothing to it, and a quote ends a literal also behind a backslash. A badly formatted call goes to `rejected` when it
/// is met. Linear in the length of the text, however calls are nested.
SourceScan scanSource(std::string_view text, const CancelFlag& canceled, const RejectedCallSink& rejected);

}  // namespace glossmill
