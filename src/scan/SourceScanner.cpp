#include "scan/SourceScanner.h"

#include "text/Utf16.h"

namespace glossmill {

namespace {
constexpr std::size_t kExcerptUnits = 80;
}

bool SourceScanner::next() {
  if (m_call + 1 < m_groups.calls().size()) {
    ++m_call;
    return true;
  }
  m_call = 0;
  return m_groups.next();
}

std::variant<SourceString, CallRejection> SourceScanner::read() {
  const bool isBalanced = m_call > 0 || m_groups.balance(m_canceled);
  if (!isBalanced || m_canceled.isSet()) return CallRejection::Canceled;
  const CallPlaces& call = m_groups.calls()[m_call];
  return m_splitter.split(call.open, call.close);
}

std::string SourceScanner::excerpt() const {
  return clipUtf16(m_text.substr(m_groups.calls()[m_call].name), kExcerptUnits);
}

SourceScan scanSource(std::string_view text, const CancelFlag& canceled, const RejectedCallSink& rejected) {
  SourceScan scan;
  SourceScanner scanner(text, canceled);
  while (!canceled.isSet()) {
    if (!scanner.next()) return scan;
    const auto call = scanner.read();
    if (const auto* string = std::get_if<SourceString>(&call)) {
      scan.strings.push_back(*string);
    } else {
      rejected(scanner.excerpt(), std::get<CallRejection>(call));
    }
  }
  scan.canceled = true;
  return scan;
}

}  // namespace glossmill
