#include "project/ScanRun.h"

namespace glossmill {

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

void ScanRun::happened(const ScanEvent& event) {
  report.add(event);
  readFiles.add(event, m_parts.saves);
  // A source that cannot be decoded is passed over by the rules; these two would take words along.
  if (const auto* file = std::get_if<ProjectFileUnread>(&event)) m_reading.note(file->file, file->error.sentence);
  if (const auto* file = std::get_if<StringsFileUnread>(&event)) m_reading.note(file->file, file->error.sentence);
  m_parts.messages.write(event);
}

}  // namespace glossmill
