#include "exchange/ExportText.h"
#include "project/ProjectWindowController.h"
#include "text/Format.h"

namespace glossmill {

void ProjectWindowController::exportLanguageToFileAllStrings(std::shared_ptr<Language> language, const FileUrl& file,
                                                             bool allStrings) {
  if (!language || file.empty()) return;
  beginLongTimeSheet("Exporting strings...");
  makeIndicatorCounting();
  m_host.threads.performInBackground(
      [this, language, file, allStrings] { bgExportLanguage(*language, file, allStrings); });
}

void ProjectWindowController::bgExportLanguage(const Language& language, const FileUrl& file, bool allStrings) {
  std::optional<std::string> text = kExportTextStart;
  std::int64_t counter = 0;
  for (const std::shared_ptr<LocalizeString>& record : stringList()) {
    if (m_longTimeCanceled.isSet()) {
      text.reset();
      break;
    }
    ++counter;
    onMainThread([&] { updateLongTerm(static_cast<double>(counter)); });
    appendExportBlock(*text, *record, counter, language.code(), allStrings);
  }
  onMainThread([&] { saveExportTextFile(language, file, text); });
}

void ProjectWindowController::saveExportTextFile(const Language& language, const FileUrl& file,
                                                 const std::optional<std::string>& text) {
  const Outcome written = text ? m_host.files.writeText(file, *text) : Done{};
  if (!written) {
    runOkAlert(formatText(localized("Error saving export file for language %@"), {language.description()}));
    systemLog(formatText("Error %@ writing file: %@", {written.error().sentence, file.text()}));
  }
  didEndLongTimeSheetReturnCodeContextInfo();
}

}  // namespace glossmill
