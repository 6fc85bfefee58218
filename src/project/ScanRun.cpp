#include "project/ScanRun.h"

#include <algorithm>

namespace glossmill {

ScanRun::ScanRun(const ProjectRules& rules, const Parts& parts)
    : m_rules(rules), m_parts(parts), m_ahead(parts.files, parts.saves), m_reading(m_ahead, parts.saves) {
  m_reading.onUnlisted = [this](const FileUrl& directory, const Error& error) {
    happened(DirectoryUnread{directory, error});
  };
}

void ScanRun::parseFileList(const FileUrl& directory, ScanMemory& memory) {
  m_rules.readSources(directory, input(), memory, result);
  const std::optional<FileUrl>& package = memory.projectPackage;
  if (package && memory.projectFileData == "") {
    m_reading.note(package->appending("project.pbxproj"), "The project file is empty.");
  }
}

ScanEnd ScanRun::parseLocalizableStringsList() {
  return m_rules.readStringsFiles(input(), result);
}

FileRole ScanRun::roleOf(const UnreadPlace& place) const {
  if (place.kind == EntryKind::Directory) return FileRole::Directory;
  if (readFiles.find(place.url)) return FileRole::StringsFile;
  if (place.url.pathExtension() == "pbxproj") return FileRole::ProjectFile;
  return place.kind == EntryKind::File ? FileRole::Source : FileRole::Unknown;
}

/// By xcode's rules two threads read, and which of them has a mishap first is chance.
std::vector<UnreadPlace> ScanRun::unread() const {
  std::vector<UnreadPlace> places = m_reading.unread();
  if (m_parts.options.rules == RuleSet::Classic) return places;
  std::sort(places.begin(), places.end(),
            [](const UnreadPlace& a, const UnreadPlace& b) { return a.url.path() < b.url.path(); });
  return places;
}

void ScanRun::finishReport() {
  std::vector<FileFindings> places;
  for (const UnreadPlace& place : unread()) {
    places.push_back({place.url, roleOf(place), Error{place.sentence}, {}, 0, 0});
  }
  report.addUnread(places);
}

void ScanRun::happened(const ScanEvent& event) {
  report.add(event);
  readFiles.add(event, m_parts.saves);
  if (const auto* cutOff = std::get_if<LinksCutOff>(&event)) {
    m_reading.note(cutOff->directory, "Too many directories are reached through links.", EntryKind::Directory);
  }
  // A source that cannot be decoded is passed over by the rules; these two would take words along.
  if (const auto* file = std::get_if<ProjectFileUnread>(&event)) m_reading.note(file->file, file->error.sentence);
  if (const auto* file = std::get_if<StringsFileUnread>(&event)) m_reading.note(file->file, file->error.sentence);
  m_parts.messages.write(event);
}

}  // namespace glossmill
