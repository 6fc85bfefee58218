#include "edit/SavePlan.h"

#include "text/Utf8.h"

namespace glossmill {

namespace {

void giveFile(Language& language) {
  if (language.urlDepth() == Language::kStringsFile) return;
  language.setLocalizedStringUrl(language.localizedStringUrl().appending("Localizable.strings"));
  language.setUrlDepth(Language::kStringsFile);
}

BytePieces piecesOf(const std::shared_ptr<LanguageTexts>& texts, LanguageCode language) {
  texts->start(language);
  return [texts]() -> Result<std::string_view> {
    const std::string_view piece = texts->nextPiece();
    if (!isValidUtf8(piece)) return Error{"The text cannot be written as UTF-8."};
    return piece;
  };
}

}  // namespace

std::vector<FileText> planSave(const std::shared_ptr<LanguageTexts>& texts, const LanguageArray& languages) {
  std::vector<FileText> plan;
  for (const std::shared_ptr<Language>& language : languages) {
    giveFile(*language);
    FileText& text = plan.emplace_back();
    text.file = language->localizedStringUrl();
    text.language = language->iso639();
    text.entriesAfter = texts->entryCount(language->code());
    text.bytes = [texts, code = language->code()] { return piecesOf(texts, code); };
  }
  return plan;
}

}  // namespace glossmill
