#include "exchange/ExchangeFormat.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

const ExchangeFormat& ProjectWindowController::exchangeFormat() const {
  return m_options.rules == RuleSet::Xcode ? tableFormat() : exchangeFormats().front();
}

void ProjectWindowController::exportLanguageToFileAllStrings(std::shared_ptr<Language> language, const FileUrl& file,
                                                             ExportScope scope) {
  if (!language || file.empty()) return;
  beginCountingJob("Exporting strings...");
  m_host.threads.performInBackground([this, language, file, scope] { bgExportLanguage(*language, file, scope); });
}

void ProjectWindowController::bgExportLanguage(const Language& language, const FileUrl& file, ExportScope scope) {
  const ExchangeFormat& format = exchangeFormat();
  std::optional<std::string> text(std::in_place, format.start);
  std::int64_t counter = 0;
  for (const std::shared_ptr<LocalizeString>& record : stringList()) {
    if (m_longJob.canceled().isSet()) {
      text.reset();
      break;
    }
    ++counter;
    onMainThread([&] { updateLongTerm(static_cast<double>(counter)); });
    format.write(*text, *record, counter, language.code(), scope);
  }
  onMainThread([&] { saveExportTextFile(language, file, text); });
}

void ProjectWindowController::saveExportTextFile(const Language& language, const FileUrl& file,
                                                 const std::optional<std::string>& text) {
  const Outcome written = text ? m_host.files.writeText(file, *text) : Done{};
  if (!written) {
    runOkAlert(formatText(localized("Error saving export file for language %@"), {language.description()}),
               AlertRequest::Cause{file, written.error()});
    systemLog({"Error %@ writing file: %@", {written.error().sentence, file.text()}});
  }
  didEndLongTimeSheetReturnCodeContextInfo();
}

}  // namespace glossmill
