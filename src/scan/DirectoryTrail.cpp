#include "scan/DirectoryTrail.h"

#include <algorithm>

namespace glossmill {

bool DirectoryTrail::leadsBack(const FileUrl& url, const DirectoryEntry& entry) const {
  if (!entry.isLink) return false;  // only a link can close a circle
  const std::optional<FileIdentity> target = m_files.identityOf(url);
  if (!target) return false;
  return std::any_of(m_directories.begin(), m_directories.end(),
                     [&](const FileUrl& directory) { return m_files.identityOf(directory) == target; });
}

}  // namespace glossmill
