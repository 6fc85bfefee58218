#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "checks/CheckedProject.h"
#include "checks/FileEntries.h"
#include "platform/Files.h"

namespace glossmill {

/// A strings file of a project that is checked.
struct CheckedFile {
  FileUrl url;
  const CheckedLanguage* language = nullptr;
  const StringsTable* table = nullptr;  ///< null under rules without tables
  std::optional<std::uint32_t> encoding;

  std::string_view tableId() const { return table ? std::string_view(table->id) : std::string_view(); }
};

/// Reads the file again by the rules of its project; nothing when it cannot be read.
std::optional<FileEntries> entriesOf(const CheckedFile& file, FileReading& files);

/// The strings files of a project, which outlives them.
class CheckedFiles {
 public:
  using ByPath = std::map<std::string, CheckedFile, std::less<>>;

  explicit CheckedFiles(const CheckedProject& project);

  const ByPath& all() const { return m_files; }
  /// Null for a file of another kind.
  const CheckedFile* at(std::string_view path) const;
  /// The file for a row's translations into a language; null where there is none.
  const CheckedFile* of(const LocalizeString& record, const CheckedLanguage& language) const;
  /// The file with the texts that a row is translated from; null where there is none, or under rules without tables.
  const CheckedFile* developmentFileOf(const LocalizeString& record) const;

 private:
  const CheckedFile* fileOf(const LocalizeString& record, LanguageCode language) const;

  ByPath m_files;
  std::map<std::string, const StringsTable*, std::less<>> m_tables;  ///< by id
};

}  // namespace glossmill
