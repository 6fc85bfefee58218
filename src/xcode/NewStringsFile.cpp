#include "xcode/NewStringsFile.h"

#include <string>

namespace glossmill {

namespace {

FileUrl languageDirectory(const StringsTable& table, LanguageCode language, const StringsTables& tables) {
  for (const std::shared_ptr<StringsTable>& other : tables) {
    const bool isBeside = other->directory == table.directory;
    const StringsTable::File* file = isBeside ? other->find(language) : nullptr;
    if (file) return file->file.parent();
  }
  return table.directory.appending(language.text() + ".lproj");
}

/// True when bytes in this encoding say so themselves.
bool isSelfEvident(const DecodedFile& file) {
  return file.hasMark || file.encoding == FileEncoding(TextEncoding::Utf8);
}

}  // namespace

FileUrl newStringsFile(const StringsTable& table, LanguageCode language, const StringsTables& tables) {
  return languageDirectory(table, language, tables).appending(table.name + ".strings");
}

StringsDocument newStringsDocument(const StringsDocument* development) {
  if (!development) return StringsDocument(std::string());
  if (isSelfEvident(development->file())) return StringsDocument::emptyLike(*development);
  return StringsDocument::emptyWith(development->lineEnd());
}

}  // namespace glossmill
