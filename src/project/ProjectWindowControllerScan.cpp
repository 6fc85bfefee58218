#include <algorithm>

#include "platform/ReadText.h"
#include "project/ProjectWindowController.h"
#include "scan/PackageSearch.h"
#include "scan/SourceScanner.h"
#include "scan/TranslationColumns.h"
#include "strings/StringsFileParser.h"
#include "text/Format.h"

namespace glossmill {

std::optional<FileUrl> ProjectWindowController::xcodeProjectUrl(const FileUrl& directory) {
  return findProjectPackage(m_host.files, directory, m_longTimeCanceled);
}

void ProjectWindowController::parseFileList(const FileUrl& directory) {
  const auto result = std::make_shared<ScanResult>();
  m_projectPackage = xcodeProjectUrl(directory);
  if (m_projectPackage) {
    readProjectFile(*m_projectPackage);
    m_walkState.actualDirectoryDepth = 0;
    contentsOfUrlDestination(directory, *result);
  } else {
    logText(localized("Unable to find .xcodeproj file in given directory"));
  }
  onMainThread([&] { endParseFileList(result); });
}

void ProjectWindowController::readProjectFile(const FileUrl& package) {
  Result<std::string> text = readText(m_host.files, package.appending("project.pbxproj"));
  if (text) {
    m_projectFileData = std::move(text.value());
    return;
  }
  logText(localized("Unable to find .pbxproj file in given project file"));
  systemLog(formatText("Error open Xcode project file: %@", {text.error().sentence}));
}

void ProjectWindowController::contentsOfUrlDestination(const FileUrl& directory, ScanResult& destination) {
  std::optional<ProjectFileNames> members;
  if (m_projectFileData) members.emplace(*m_projectFileData);
  m_walkDestination = &destination;
  TreeWalk walk({m_host.files, m_iso639Dict, members ? &*members : nullptr, m_longTimeCanceled}, m_walkState,
                *destination.languagesList, *this);
  walk.contentsOfUrl(directory);
  m_walkDestination = nullptr;
}

void ProjectWindowController::oldLanguageName(std::string_view directoryName, const std::string& code) {
  logText(formatText(localized("Changing old language description: %@ to ISO639: %@"), {directoryName, code}));
}

void ProjectWindowController::foundStringsFile(const Language& language) {
  logText(formatText(localized("Found Localizable.strings for Language: %@"), {language.description()}));
}

void ProjectWindowController::sourceFile(const FileUrl& file) {
  m_actualParseFileName = file;
  m_walkDestination->fileList.push_back(file);
  const Result<std::string> text = readText(m_host.files, file);
  if (!text) {
    logSourceError(file, text.error());
    return;
  }
  const SourceScan scan = scanSource(text.value(), m_longTimeCanceled);
  for (const std::string& excerpt : scan.badCalls) {
    if (m_longTimeCanceled.isSet()) return;
    badStringFormat(excerpt);
  }
  if (!scan.canceled) m_walkDestination->stringList.add(scan.strings, file);
}

void ProjectWindowController::logSourceError(const FileUrl& file, const Error& error) {
  systemLog(formatText("Error reading source: %@\n%@", {file.text(), error.sentence}));
  logText(formatText(localized("Error reading source: %@"), {file.text()}));
}

void ProjectWindowController::badStringFormat(const std::string& excerpt) {
  logText(formatText(localized("Bad formatted LocalizedString in file: %@ ignored\n    %@"),
                     {m_actualParseFileName.lastPathComponent(), excerpt}));
  systemLog(formatText("Ignoring bad formatted String: LocalizedString(%@)", {excerpt}));
}

void ProjectWindowController::endParseFileList(std::shared_ptr<ScanResult> result) {
  if (m_longTimeCanceled.isSet()) {
    clearProject();
    didEndLongTimeSheetReturnCodeContextInfo();
    return;
  }
  m_longTime.outlets.longTimeSheetTitle->setStringValue(localized("Parsing Localizable.strings ..."));
  m_host.threads.performInBackground([this, result] { parseLocalizableStringsList(result); });
}

void ProjectWindowController::parseLocalizableStringsList(std::shared_ptr<ScanResult> result) {
  KeyReader keys(result->stringList.keys());
  TranslationColumns columns(result->stringList.records());
  for (const auto& language : *result->languagesList) {
    if (m_longTimeCanceled.isSet()) return;
    if (!parseLocalizableStrings(*language, *result, keys, columns)) return;
  }
  columns.moveIntoRecords();
  onMainThread([&] { endParseLocalizeableStringList(*result); });
}

bool ProjectWindowController::parseLocalizableStrings(const Language& language, ScanResult& result, KeyReader& keys,
                                                      TranslationColumns& columns) {
  if (language.localizedStringUrl().empty() || language.urlDepth() != Language::kStringsFile) {
    logMissingStrings(language);
    return true;
  }
  systemLog(formatText("Parsing file: %@", {language.localizedStringUrl().text()}));
  StringsFileParser parser(keys, result.stringList.arena(), m_longTimeCanceled);
  const Outcome outcome = readTextPieces(m_host.files, language.localizedStringUrl(),
                                         [&parser](std::string_view piece) { parser.feed(piece); });
  if (!outcome) {
    logText(formatText(localized("Error reading Localizable.strings: %@"), {outcome.error().sentence}));
    systemLog(formatText("Error reading Localizable.strings: %@", {outcome.error().sentence}));
    return true;
  }
  const StringsFileContent content = parser.finish();
  systemLog(formatText("Lines: %ld", {content.lineCount}));
  if (content.canceled || !logDiagnostics(content)) return false;
  columns.add(language.code(), content.entries);
  return true;
}

/// A cancel is noticed before the next line; behind the last one nobody looks.
bool ProjectWindowController::logDiagnostics(const StringsFileContent& content) {
  for (const StringsFileDiagnostic& diagnostic : content.diagnostics) {
    logDiagnostic(diagnostic);
    if (m_longTimeCanceled.isSet() && diagnostic.line < content.lineCount) return false;
  }
  return true;
}

void ProjectWindowController::logDiagnostic(const StringsFileDiagnostic& diagnostic) {
  if (diagnostic.kind == StringsFileDiagnostic::Kind::NoMatch) {
    logText(formatText(localized("String in Localizable.strings found with no match in source code\n    %@"),
                       {diagnostic.text}));
    systemLog(formatText("String in Localizable.strings found with no match in Code:\n%@", {diagnostic.text}));
    return;
  }
  systemLog(formatText("Bad formattet String in Localizable.strings ignored\n    %@", {diagnostic.text}));
  logText(formatText(localized("Bad formattet String in Localizable.strings ignored\n    %@"), {diagnostic.text}));
}

void ProjectWindowController::logMissingStrings(const Language& language) {
  logText(formatText(localized("Missing Localizable.strings for language: %@"), {language.description()}));
  systemLog(formatText("Missing Localizable.strings for language: %@", {language.description()}));
}

void ProjectWindowController::endParseLocalizeableStringList(ScanResult& result) {
  if (m_longTimeCanceled.isSet()) {
    clearProject();
  } else {
    installResult(result);
  }
  didEndLongTimeSheetReturnCodeContextInfo();
}

void ProjectWindowController::installResult(ScanResult& result) {
  m_window.outlets.stringTableView->beginUpdates();
  m_fileList = std::move(result.fileList);
  m_stringController.addObjects(result.stringList.records());
  m_stringController.setSelectionIndex(0);
  m_languageController.setContent(result.languagesList);
  m_languageController.setSelectionIndex(0);
  m_window.outlets.stringFilterPopUp->selectItemAtIndex(
      static_cast<int>(m_host.defaults.integerForKey("StringFilterPopUp")));
  changeStringFilter();
  m_window.outlets.stringTableView->endUpdates();
  setChanged(false);
  m_opened = true;
  m_window.outlets.window->makeKeyAndOrderFront();
  m_window.outlets.window->setOrderedIndex(0);
  m_application.saveRecent(m_projectDirectory.path());
}

}  // namespace glossmill
