#include "edit/ProjectSaver.h"

namespace glossmill {

namespace {

using Kind = SaveOutcome::Kind;

void giveFile(Language& language) {
  if (language.urlDepth() == Language::kStringsFile) return;
  language.setLocalizedStringUrl(language.localizedStringUrl().appending("Localizable.strings"));
  language.setUrlDepth(Language::kStringsFile);
}

SaveOutcome saveLanguage(Files& files, LanguageTexts& texts, Language& language) {
  giveFile(language);
  const FileUrl& file = language.localizedStringUrl();
  if (files.kindOf(file) == EntryKind::Missing) {
    const Outcome made = files.createDirectory(file.parent(), true);
    if (!made) return {language, Kind::DirectoryFailed, made.error()};
  }
  // Somebody may have made the file together with its directory.
  const bool existed = files.kindOf(file) != EntryKind::Missing;
  texts.start(language.code());
  const Outcome written = files.writeTextPieces(file, [&texts] { return texts.nextPiece(); });
  if (!written) return {language, Kind::Failed, written.error()};
  return {language, existed ? Kind::Written : Kind::Created, {}};
}

}  // namespace

bool saveLanguages(Files& files, LanguageTexts& texts, const LanguageArray& languages, const SaveListener& listener) {
  const LanguageArray kept = languages;  // a project may be closed behind a question that the listener asks
  bool allWritten = true;
  for (const std::shared_ptr<Language>& language : kept) {
    const SaveOutcome outcome = saveLanguage(files, texts, *language);
    allWritten = allWritten && outcome.isWritten();
    listener(outcome);
  }
  return allWritten;
}

}  // namespace glossmill
