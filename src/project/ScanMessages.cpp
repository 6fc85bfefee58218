#include "project/ScanMessages.h"

#include <utility>

#include "model/Language.h"
#include "model/Problem.h"

namespace glossmill {

namespace {
constexpr std::size_t kShownUnits = 80;  ///< of a rejected line, as many as of a rejected call
}

ScanMessages::ScanMessages(const Bundle& bundle, SystemLog& systemLog, LogText logText)
    : m_bundle(bundle),
      m_systemLog(systemLog),
      m_logText(std::move(logText)),
      m_callRejected(localized("Bad formatted LocalizedString in file: %@ ignored\n    %@")),
      m_entryRejected(localized("Bad formattet String in Localizable.strings ignored\n    %@")),
      m_entryWithoutMatch(localized("String in Localizable.strings found with no match in source code\n    %@")) {}

void ScanMessages::write(const ScanEvent& event) {
  std::visit([this](const auto& one) { writeEvent(one); }, event);
}

void ScanMessages::writeEvent(const NoPackageFound&) {
  m_logText(localized("Unable to find .xcodeproj file in given directory"));
}

void ScanMessages::writeEvent(const DirectoryUnread& event) {
  m_systemLog.write({"Error reading directory: %@\n%@", {event.directory.text(), event.error.sentence}});
}

void ScanMessages::writeEvent(const LinksCutOff& event) {
  m_logText({localized("Too many directories are reached through links; left out from: %@"), {event.directory.text()}});
}

void ScanMessages::writeEvent(const ProjectFileUnread& event) {
  m_logText(localized("Unable to find .pbxproj file in given project file"));
  m_systemLog.write({"Error open Xcode project file: %@", {event.error.sentence}});
}

void ScanMessages::writeEvent(const OldLanguageName& event) {
  m_logText({localized("Changing old language description: %@ to ISO639: %@"), {event.directoryName, event.code}});
}

void ScanMessages::writeEvent(const StringsFileFound& event) {
  m_logText({localized("Found Localizable.strings for Language: %@"), {event.language.description()}});
}

void ScanMessages::writeEvent(const SourceUnread& event) {
  m_systemLog.write({"Error reading source: %@\n%@", {event.file.text(), event.error.sentence}});
  m_logText({localized("Error reading source: %@"), {event.file.text()}});
}

void ScanMessages::writeEvent(const CallRejected& event) {
  m_logText({m_callRejected, {event.file.lastPathComponent(), event.excerpt}});
  m_systemLog.write({"Ignoring bad formatted String: LocalizedString(%@)", {event.excerpt}});
}

void ScanMessages::writeEvent(const StringsFileMissing& event) {
  m_logText({localized("Missing Localizable.strings for language: %@"), {event.language.description()}});
  m_systemLog.write({"Missing Localizable.strings for language: %@", {event.language.description()}});
}

void ScanMessages::writeEvent(const StringsFileBegins& event) {
  m_systemLog.write({"Parsing file: %@", {event.file.text()}});
}

void ScanMessages::writeEvent(const StringsFileUnread& event) {
  m_logText({localized("Error reading Localizable.strings: %@"), {event.error.sentence}});
  m_systemLog.write({"Error reading Localizable.strings: %@", {event.error.sentence}});
}

void ScanMessages::writeEvent(const LinesCounted& event) {
  m_systemLog.write({"Lines: %ld", {event.lines}});
}

void ScanMessages::writeEvent(const EntryRejected& event) {
  m_systemLog.write(
      Message("Bad formattet String in Localizable.strings ignored\n    %@", {event.text}).clippedTo(kShownUnits));
  m_logText(Message(m_entryRejected, {event.text}).clippedTo(kShownUnits));
}

void ScanMessages::writeEvent(const EntryWithoutMatch& event) {
  m_logText({m_entryWithoutMatch, {event.key}});
  m_systemLog.write({"String in Localizable.strings found with no match in Code:\n%@", {event.key}});
}

/// As compilers say it.
void ScanMessages::writeEvent(const ProblemFound& event) {
  const Problem& problem = event.problem;
  std::string place = problem.file.path();
  for (const std::uint32_t number : {problem.line, problem.column}) {
    if (number != 0) place += ":" + std::to_string(number);
  }
  m_logText({"%@: %@", {place, problem.text}});
}

}  // namespace glossmill
