#include "scan/DirectoryTrail.h"

#include <algorithm>

namespace glossmill {

bool DirectoryTrail::leadsBack(const FileUrl& url, const DirectoryEntry& entry) const {
  if (!entry.isLink) return false;  // only a link can close a circle
  const std::optional<FileIdentity> target = entry.target ? entry.target : m_files.identityOf(url);
  if (!target) return false;
  return std::any_of(m_places.begin(), m_places.end(), [&](const Place& place) { return identityOf(place) == target; });
}

bool DirectoryTrail::keepsOut(const FileUrl& url, const DirectoryEntry& entry) {
  const bool throughLink = isThroughLink(entry);
  if (throughLink && m_cutOff) return true;
  if (leadsBack(url, entry)) return true;
  if (!throughLink) return false;
  if (m_throughLinks == m_mostThroughLinks) m_cutOff = url;
  return m_throughLinks++ == m_mostThroughLinks;
}

void DirectoryTrail::enter(const FileUrl& directory, const DirectoryEntry& entry) {
  m_places.push_back({directory, isThroughLink(entry)});
}

bool DirectoryTrail::isThroughLink(const DirectoryEntry& entry) const {
  return entry.isLink || (!m_places.empty() && m_places.back().isThroughLink);
}

const std::optional<FileIdentity>& DirectoryTrail::identityOf(const Place& place) const {
  if (!place.identity) place.identity = m_files.identityOf(place.url);
  return *place.identity;
}

}  // namespace glossmill
