#pragma once

#include <vector>

#include "model/ProjectRules.h"
#include "model/ScanReport.h"
#include "platform/ReadAhead.h"
#include "platform/SaveDisk.h"
#include "project/ReadFiles.h"
#include "project/ScanMessages.h"
#include "safety/WatchedReading.h"

namespace glossmill {

/// One scan on its way through its two phases: what it gathers, and whoever hears of what happens. The thread that
/// reads has it for itself; the main thread gets it at the end.
class ScanRun : private ScanListener {
 public:
  /// What a scan works on beside the project; all of it outlives the scan.
  struct Parts {
    FileReading& files;
    SaveDisk& saves;
    const IsoTable& isoTable;
    const CancelFlag& canceled;
    ScanMessages& messages;
    const ProjectOptions& options;
  };

  ScanRun(const ProjectRules& rules, const Parts& parts);

  /// Phase one.
  void parseFileList(const FileUrl& directory, ScanMemory& memory);
  /// Phase two.
  ScanEnd parseLocalizableStringsList();
  /// Behind the last phase: the report says of all that was not read what it is to the project.
  void finishReport();

  ScanResult result;
  ScanReport report;
  ReadFiles readFiles;
  /// What the system did not give, or not completely.
  std::vector<UnreadPlace> unread() const;

 private:
  ScanInput input() { return {m_reading, m_parts.isoTable, m_parts.canceled, *this, m_parts.options}; }
  void happened(const ScanEvent& event) override;
  FileRole roleOf(const UnreadPlace& place) const;

  const ProjectRules& m_rules;
  const Parts m_parts;
  ReadAhead m_ahead;
  WatchedReading m_reading;
};

}  // namespace glossmill
