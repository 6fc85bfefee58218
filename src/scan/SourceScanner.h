#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/ScanEvents.h"
#include "model/SourceString.h"
#include "platform/CancelFlag.h"
#include "scan/ArgumentSplitter.h"
#include "scan/CallGroups.h"

namespace glossmill {

/// Finds every "NSLocalizedString", in any case and wherever it stands, takes the parenthesised text after it, and of
/// that the first two @-literals. A plain text match: comments, preprocessor lines, character literals and escapes mean
/// nothing to it (rules 12 to 17), and a quote ends a literal also behind a backslash. Linear in the length of the
/// text, however calls are nested, and a call costs nothing behind its end.
class SourceScanner {
 public:
  /// Both outlive it.
  SourceScanner(std::string_view text, const CancelFlag& canceled)
      : m_text(text), m_canceled(canceled), m_groups(text), m_splitter(text) {}

  /// Finds the next call; false when there is none.
  bool next();
  /// Key and comment of that call, or what it lacks. A cancel that is noticed on the way rejects the call.
  std::variant<SourceString, CallRejection> read();
  /// The source from the call's name on, 80 UTF-16 units at most (rule 18).
  std::string excerpt() const;
  /// Where the call's name begins in the text.
  std::size_t place() const { return m_groups.calls()[m_call].name; }

 private:
  std::string_view m_text;
  const CancelFlag& m_canceled;
  CallGroups m_groups;
  std::size_t m_call = 0;  ///< in the group
  ArgumentSplitter m_splitter;
};

/// What one source file holds, in the order of its calls.
struct SourceScan {
  std::vector<SourceString> strings;
  bool canceled = false;  ///< then nothing else counts
};

/// Takes a badly formatted call's excerpt, and what the call lacks.
using RejectedCallSink = std::function<void(std::string_view excerpt, CallRejection reason)>;

/// Reads all the calls of a source. A rejected one goes to `rejected` when it is met.
SourceScan scanSource(std::string_view text, const CancelFlag& canceled, const RejectedCallSink& rejected);

}  // namespace glossmill
