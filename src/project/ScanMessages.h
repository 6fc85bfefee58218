#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "model/ScanEvents.h"
#include "platform/Bundle.h"
#include "platform/SystemLog.h"

namespace glossmill {

/// Turns what happens in a scan into the messages of the log window and of the system log; many events are told to
/// both, in an order of their own (rule 59). On the thread that reads.
class ScanMessages {
 public:
  using LogText = std::function<void(const Message&)>;

  /// The bundle and the log outlive it; `logText` writes to the log window.
  ScanMessages(const Bundle& bundle, SystemLog& systemLog, LogText logText);

  void write(const ScanEvent& event);

 private:
  void writeEvent(const PackageFound&) {}
  void writeEvent(const NoPackageFound&);
  void writeEvent(const DirectoryUnread& event);
  void writeEvent(const LinksCutOff& event);
  void writeEvent(const ProjectFileUnread& event);
  void writeEvent(const OldLanguageName& event);
  void writeEvent(const StringsFileFound& event);
  void writeEvent(const SourceBegins&) {}
  void writeEvent(const SourceUnread& event);
  void writeEvent(const CallRejected& event);
  void writeEvent(const StringsFileMissing& event);
  void writeEvent(const StringsFileBegins& event);
  void writeEvent(const StringsFileUnread& event);
  void writeEvent(const LinesCounted& event);
  void writeEvent(const EntryRejected& event);
  void writeEvent(const EntryWithoutMatch& event);
  void writeEvent(const StringsFileRead&) {}
  void writeEvent(const StringsFileExpected&) {}
  void writeEvent(const ProblemFound& event);
  std::string localized(std::string_view key) const { return m_bundle.localizedString(key); }

  const Bundle& m_bundle;
  SystemLog& m_systemLog;
  LogText m_logText;
  // The formats of what a project may hold a million of are looked up once.
  const std::string m_callRejected;
  const std::string m_entryRejected;
  const std::string m_entryWithoutMatch;
};

}  // namespace glossmill
