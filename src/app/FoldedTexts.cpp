#include "app/FoldedTexts.h"

#include <algorithm>

#include "text/FoldCase.h"

namespace glossmill {

std::string_view FoldedTexts::of(const LocalizeString& record) {
  if (m_next >= m_entries.size() || m_entries[m_next].record != &record) {
    if (!m_entries.empty() && m_entries.front().record == &record) {
      m_next = 0;
    } else {
      m_entries.resize(std::min(m_next, m_entries.size()));
      append(record, m_textOf(record));
    }
  }
  Entry& entry = m_entries[m_next++];
  if (entry.isOutdated) store(entry, m_textOf(record));
  return std::string_view(m_texts).substr(entry.start, entry.length);
}

void FoldedTexts::append(const LocalizeString& record, std::string_view text) {
  store(m_entries.emplace_back(Entry{&record}), text);
}

void FoldedTexts::store(Entry& entry, std::string_view text) {
  const std::string folded = foldCase(text);
  entry.start = m_texts.size();
  entry.length = folded.size();
  entry.isOutdated = false;
  m_texts += folded;
}

void FoldedTexts::forget() {
  m_entries.clear();
  m_texts.clear();
  m_next = 0;
}

void FoldedTexts::forget(const LocalizeString& record) {
  const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&record](const Entry& entry) { return entry.record == &record; });
  if (found != m_entries.end()) found->isOutdated = true;
}

}  // namespace glossmill
