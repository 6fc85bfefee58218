#include "safety/SaveRecord.h"

namespace glossmill {

void SaveRecord::announce(const std::vector<FileUrl>& directories) {
  if (!directories.empty()) static_cast<void>(note({}, directories));
}

Outcome SaveRecord::note(const std::vector<SavedFile>& files, const std::vector<FileUrl>& directories) {
  SaveManifest manifest = m_empty;
  manifest.files = files;
  manifest.directories = directories;
  if (m_id) return m_versions.amend(*m_id, manifest);
  const Result<std::string> id = m_versions.begin(manifest);
  if (!id) return id.error();
  m_id = id.value();
  return Done{};
}

void SaveRecord::forget() {
  if (m_id) static_cast<void>(m_versions.drop(*m_id));
  m_id.reset();
}

bool SaveRecord::finish() {
  return m_id && m_versions.finish(*m_id);
}

}  // namespace glossmill
