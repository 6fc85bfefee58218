#include "project/NamedKeys.h"

#include "platform/ReadText.h"

namespace glossmill {

void NamedKeys::readSources() {
  if (m_last > 0 || !m_rows.empty()) return;
  m_last = m_project.sources.size();
  m_rows.reserve(m_project.records.size());
  for (const std::shared_ptr<LocalizeString>& record : m_project.records) m_rows.insert(record->name());
}

bool NamedKeys::step() {
  if (m_next == m_last) return false;
  const Result<std::string> text = readText(m_files, m_project.sources[m_next++]);
  if (text) m_texts.addSource(text.value());
  return true;
}

}  // namespace glossmill
