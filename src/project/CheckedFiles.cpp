#include "project/CheckedFiles.h"

#include "platform/ReadBytes.h"
#include "platform/ReadText.h"
#include "project/ClassicEntries.h"
#include "project/XcodeEntries.h"

namespace glossmill {

std::optional<FileEntries> entriesOf(const CheckedFile& file, FileReading& files) {
  if (!file.table) {
    const Result<std::string> text = readText(files, file.url);
    return text ? std::optional(classicEntries(text.value())) : std::nullopt;
  }
  const Result<std::string> bytes = readBytes(files, file.url);
  return bytes ? std::optional(xcodeEntries(bytes.value(), file.encoding)) : std::nullopt;
}

CheckedFiles::CheckedFiles(const CheckedProject& project) {
  for (const StringsTable& table : project.tables) m_tables[table.id] = &table;
  for (const CheckedLanguage& language : project.languages) {
    if (!language.file.empty()) m_files[language.file.path()] = {language.file, &language, nullptr, std::nullopt};
    for (const StringsTable& table : project.tables) {
      const StringsTable::File* const file = table.find(language.code);
      if (file) m_files[file->file.path()] = {file->file, &language, &table, file->encoding};
    }
  }
}

const CheckedFile* CheckedFiles::at(std::string_view path) const {
  const auto found = m_files.find(path);
  return found == m_files.end() ? nullptr : &found->second;
}

const CheckedFile* CheckedFiles::of(const LocalizeString& record, const CheckedLanguage& language) const {
  return record.tableRow() ? fileOf(record, language.code) : at(language.file.path());
}

const CheckedFile* CheckedFiles::developmentFileOf(const LocalizeString& record) const {
  return record.tableRow() ? fileOf(record, record.tableRow()->table->development) : nullptr;
}

/// Asked of the copy: the table of the record itself may get files meanwhile.
const CheckedFile* CheckedFiles::fileOf(const LocalizeString& record, LanguageCode language) const {
  const auto table = m_tables.find(record.tableRow()->table->id);
  if (table == m_tables.end()) return nullptr;
  const StringsTable::File* const file = table->second->find(language);
  return file ? at(file->file.path()) : nullptr;
}

}  // namespace glossmill
