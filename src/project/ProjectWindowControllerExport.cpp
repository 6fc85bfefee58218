#include "exchange/ExchangeFormat.h"
#include "project/ExportUnits.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

void ProjectWindowController::addExchangeFormats(std::span<const ExchangeFormat> formats) {
  m_exchange.formats.insert(m_exchange.formats.end(), formats.begin(), formats.end());
}

const ExchangeFormat& ProjectWindowController::ownFormat() const {
  return m_options.rules == RuleSet::Xcode ? tableFormat() : exchangeFormats().front();
}

const ExchangeFormat& ProjectWindowController::formatFor(std::string_view name, const FileUrl& file) const {
  const ExchangeFormat* found =
      name.empty() ? formatOfFile(m_exchange.formats, file) : formatNamed(m_exchange.formats, name);
  const bool isOwn = !found || found->name == ownFormat().name;
  return isOwn ? ownFormat() : *found;
}

void ProjectWindowController::exportLanguageToFileAllStrings(std::shared_ptr<Language> language, const FileUrl& file,
                                                             ExportScope scope) {
  if (language) exportLanguages({.languages = {language}, .file = file, .scope = scope});
}

void ProjectWindowController::exportLanguages(const ExportRequest& request) {
  if (request.file.empty()) return;
  m_exchange.exportReport = {};
  beginCountingJob("Exporting strings...");
  m_host.threads.performInBackground([this, request] { bgExportLanguage(request); });
}

void ProjectWindowController::bgExportLanguage(const ExportRequest& request) {
  const ExchangeFormat& format = formatFor(request.format, request.file);
  UnitMaker maker;
  const std::string noText;
  const std::optional<std::string>& projectFile = projectFileData();
  maker.sources =
      translatedFrom(m_projectDirectory, m_options, projectFile ? *projectFile : noText, *languagesList(), m_tables);
  maker.scope = request.scope;
  maker.isBrief = &format == &ownFormat();
  for (const std::shared_ptr<Language>& language : request.languages) {
    maker.languages.push_back(language->code());
    if (!format.carriesSeveralLanguages) break;
  }
  const std::optional<ExchangeDocument> document = documentOf(maker);
  std::optional<WrittenExchange> written;
  if (document) written = format.write(*document, {request.hasMark, m_options.version});
  onMainThread([&] {
    if (document) m_exchange.exportReport.strings = document->units.size();
    if (written) m_exchange.exportReport.leftOut = written->leftOut;
    saveExportTextFile(*request.languages.front(), request.file, written);
  });
}

/// Nothing when it was cancelled. Background.
std::optional<ExchangeDocument> ProjectWindowController::documentOf(const UnitMaker& maker) {
  ExchangeDocument document;
  document.project = m_projectDirectory.lastPathComponentWithoutExtension();
  document.sourceLanguage = maker.sources.language.text();
  for (const LanguageCode language : maker.languages) document.languages.push_back(language.text());
  std::int64_t counter = 0;
  for (const std::shared_ptr<LocalizeString>& record : stringList()) {
    if (m_longJob.canceled().isSet()) return std::nullopt;
    ++counter;
    onMainThread([&] { updateLongTerm(static_cast<double>(counter)); });
    if (std::optional<ExchangeUnit> unit = maker.unitOf(*record, counter)) document.units.push_back(std::move(*unit));
  }
  return document;
}

void ProjectWindowController::saveExportTextFile(const Language& language, const FileUrl& file,
                                                 const std::optional<WrittenExchange>& text) {
  const Outcome written = text ? writeExchange(file, *text) : Done{};
  if (!written) {
    runOkAlert(formatText(localized("Error saving export file for language %@"), {language.description()}),
               AlertRequest::Cause{file, written.error()});
    systemLog({"Error %@ writing file: %@", {written.error().sentence, file.text()}});
  }
  didEndLongTimeSheetReturnCodeContextInfo();
}

Outcome ProjectWindowController::writeExchange(const FileUrl& target, const WrittenExchange& written) {
  for (const ExchangeFile& file : written.files) {
    const FileUrl url = file.path.empty() ? target : target.appending(file.path);
    const bool needsDirectory = !file.path.empty() && m_host.files.kindOf(url.parent()) == EntryKind::Missing;
    Outcome outcome = needsDirectory ? m_host.files.createDirectory(url.parent(), true) : Done{};
    if (outcome) outcome = m_host.files.writeText(url, file.text);
    if (!outcome) return outcome;
  }
  return Done{};
}

}  // namespace glossmill
