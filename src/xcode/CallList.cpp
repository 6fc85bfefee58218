#include "xcode/CallList.h"

namespace glossmill {

void CallList::add(const SourceCalls& found, std::uint32_t source) {
  for (const FoundCall& call : found.calls) {
    Call& added = m_calls.emplace_back();
    added.key = m_keys.add(call.key).first;
    added.table = m_tables.add(call.table).first;
    added.source = source;
    added.line = static_cast<std::uint32_t>(call.place.line);
    added.column = static_cast<std::uint32_t>(call.place.column);
    if (call.comment) added.comment = m_texts.add(*call.comment);
    if (call.defaultValue) added.value = m_texts.add(*call.defaultValue);
  }
}

}  // namespace glossmill
