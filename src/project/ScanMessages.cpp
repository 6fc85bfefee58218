#include "project/ScanMessages.h"

#include "model/Language.h"
#include "text/Format.h"

namespace glossmill {

void ScanMessages::write(const ScanEvent& event) {
  std::visit([this](const auto& one) { writeEvent(one); }, event);
}

void ScanMessages::writeEvent(const NoPackageFound&) {
  m_logText(localized("Unable to find .xcodeproj file in given directory"));
}

void ScanMessages::writeEvent(const ProjectFileUnread& event) {
  m_logText(localized("Unable to find .pbxproj file in given project file"));
  m_systemLog.write(formatText("Error open Xcode project file: %@", {event.error.sentence}));
}

void ScanMessages::writeEvent(const OldLanguageName& event) {
  m_logText(
      formatText(localized("Changing old language description: %@ to ISO639: %@"), {event.directoryName, event.code}));
}

void ScanMessages::writeEvent(const StringsFileFound& event) {
  m_logText(formatText(localized("Found Localizable.strings for Language: %@"), {event.language.description()}));
}

void ScanMessages::writeEvent(const SourceUnread& event) {
  m_systemLog.write(formatText("Error reading source: %@\n%@", {event.file.text(), event.error.sentence}));
  m_logText(formatText(localized("Error reading source: %@"), {event.file.text()}));
}

void ScanMessages::writeEvent(const CallRejected& event) {
  m_logText(formatText(localized("Bad formatted LocalizedString in file: %@ ignored\n    %@"),
                       {event.file.lastPathComponent(), event.excerpt}));
  m_systemLog.write(formatText("Ignoring bad formatted String: LocalizedString(%@)", {event.excerpt}));
}

void ScanMessages::writeEvent(const StringsFileMissing& event) {
  m_logText(formatText(localized("Missing Localizable.strings for language: %@"), {event.language.description()}));
  m_systemLog.write(formatText("Missing Localizable.strings for language: %@", {event.language.description()}));
}

void ScanMessages::writeEvent(const StringsFileBegins& event) {
  m_systemLog.write(formatText("Parsing file: %@", {event.file.text()}));
}

void ScanMessages::writeEvent(const StringsFileUnread& event) {
  m_logText(formatText(localized("Error reading Localizable.strings: %@"), {event.error.sentence}));
  m_systemLog.write(formatText("Error reading Localizable.strings: %@", {event.error.sentence}));
}

void ScanMessages::writeEvent(const LinesCounted& event) {
  m_systemLog.write(formatText("Lines: %ld", {event.lines}));
}

void ScanMessages::writeEvent(const EntryRejected& event) {
  m_systemLog.write(formatText("Bad formattet String in Localizable.strings ignored\n    %@", {event.text}));
  m_logText(formatText(localized("Bad formattet String in Localizable.strings ignored\n    %@"), {event.text}));
}

void ScanMessages::writeEvent(const EntryWithoutMatch& event) {
  m_logText(
      formatText(localized("String in Localizable.strings found with no match in source code\n    %@"), {event.key}));
  m_systemLog.write(formatText("String in Localizable.strings found with no match in Code:\n%@", {event.key}));
}

}  // namespace glossmill
