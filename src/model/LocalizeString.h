#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/LanguagesDict.h"
#include "model/ProjectContext.h"
#include "model/Status.h"
#include "model/StatusTexts.h"
#include "model/TableRow.h"
#include "platform/FileUrl.h"

namespace glossmill {

/// One localizable string of the project: its key, where and with which comments it was found, and its translations.
/// Under the classic rules all text is raw, as it stands between the quotes of the source; under xcode's it is what
/// the program sees. Built on the scan's thread, then used on the main
/// thread.
class LocalizeString {
 public:
  /// A record with use count 1 and nothing else. The arena, when given, keeps the translations.
  explicit LocalizeString(std::shared_ptr<TextArena> arena = nullptr) : m_languagesDict(std::move(arena)) {}

  const std::string& name() const { return m_name; }
  void setName(std::string_view name) { m_name = name; }
  const std::string& language() const { return m_language; }
  void setLanguage(std::string_view language) { m_language = language; }
  std::int64_t useCount() const { return m_useCount; }
  void setUseCount(std::int64_t count) { m_useCount = count; }
  std::vector<std::string>& commentArray() { return m_commentArray; }
  const std::vector<std::string>& commentArray() const { return m_commentArray; }
  void setCommentArray(std::vector<std::string> comments) { m_commentArray = std::move(comments); }
  std::vector<FileUrl>& filesArray() { return m_filesArray; }
  const std::vector<FileUrl>& filesArray() const { return m_filesArray; }
  void setFilesArray(std::vector<FileUrl> files) { m_filesArray = std::move(files); }
  /// In an open project translations change through the EditDoor only.
  const LanguagesDict& languagesDict() const { return m_languagesDict; }
  /// For building records.
  void setLanguagesDict(LanguagesDict dict) { m_languagesDict = std::move(dict); }
  LanguagesDict takeLanguagesDict() { return std::exchange(m_languagesDict, LanguagesDict()); }
  /// What xcode's rules know of it; null under the classic rules.
  const TableRow* tableRow() const { return m_tableRow.get(); }
  TableRow* tableRow() { return m_tableRow.get(); }
  void setTableRow(std::unique_ptr<TableRow> row) { m_tableRow = std::move(row); }

  /// The names of the files, joined by ", ", duplicates included.
  std::string sourceList() const;
  /// The comments, joined by single line feeds; an empty comment at the front gives no leading line feed.
  std::string comment() const;

  /// Whether a translation into this language is still to be made. Under the classic rules an empty text is one; under
  /// xcode's it is none, and what is not wanted is never missing.
  bool isMissing(LanguageCode language) const;

  /// Complete when there are exactly as many translations as the project has languages (rule 30); without a project,
  /// Incomplete.
  /// Under xcode's rules: when no translation is missing.
  Status status(const ProjectContext* project) const;
  /// The same as a text, but with the count of what is missing, which is negative when there are too many.
  std::string statusString(const StatusTexts& texts, const ProjectContext* project) const;

  /// The translation of the project's selected record in its selected language: the selection counts, not this record.
  /// "" when there is none, or no selection, or no project.
  std::string translationForSelectedString(const ProjectContext* project) const;
  /// Stores, or with the empty text removes, that translation: an edit that the project applies.
  void setTranslationForSelectedString(std::string_view text, ProjectContext* project,
                                       EditKind kind = EditKind::Typing);

 private:
  friend class EditDoor;

  std::int64_t missingIn(const ProjectContext& project) const;

  std::string m_name;
  std::string m_language;
  std::int64_t m_useCount = 1;
  std::vector<std::string> m_commentArray;
  std::vector<FileUrl> m_filesArray;
  LanguagesDict m_languagesDict;
  std::unique_ptr<TableRow> m_tableRow;
};

using StringArray = std::vector<std::shared_ptr<LocalizeString>>;

}  // namespace glossmill
