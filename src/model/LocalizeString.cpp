#include "model/LocalizeString.h"

#include "model/Edit.h"
#include "model/Language.h"
#include "text/Format.h"

namespace glossmill {

std::string LocalizeString::sourceList() const {
  std::string list;
  for (const FileUrl& file : m_filesArray) {
    if (list.empty()) {
      list = file.lastPathComponent();
    } else {
      list += formatText(", %@", {file.lastPathComponent()});
    }
  }
  return list;
}

std::string LocalizeString::comment() const {
  std::string joined;
  for (const std::string& comment : m_commentArray) {
    if (joined.empty()) {
      joined = comment;
    } else {
      joined += formatText("\n%@", {comment});
    }
  }
  return joined;
}

bool LocalizeString::isMissing(LanguageCode language) const {
  if (!m_tableRow) return !m_languagesDict.contains(language);
  return m_tableRow->isWantedIn(language) && m_languagesDict.find(language).value_or("").empty();
}

/// Every entry is of one of the project's languages.
std::int64_t LocalizeString::missingIn(const ProjectContext& project) const {
  auto present = static_cast<std::int64_t>(m_languagesDict.count());
  if (!m_tableRow) return project.totalLanguages() - present;
  if (!m_tableRow->isWanted) return 0;
  m_languagesDict.each([this, &present](LanguageCode language, std::string_view text) {
    present -= text.empty() || !m_tableRow->isWantedIn(language) ? 1 : 0;
  });
  const std::size_t unneeded = m_tableRow->catalog ? m_tableRow->catalog->unneeded.size() : 0;
  return project.totalLanguages() - static_cast<std::int64_t>(unneeded) - present;
}

Status LocalizeString::status(const ProjectContext* project) const {
  if (!project) return Status::Incomplete;
  return missingIn(*project) == 0 ? Status::Complete : Status::Incomplete;
}

std::string LocalizeString::statusString(const StatusTexts& texts, const ProjectContext* project) const {
  if (!project) return texts.incompleteString;
  const std::int64_t missing = missingIn(*project);
  return missing == 0 ? texts.completeString : texts.missingString(missing);
}

std::string LocalizeString::translationForSelectedString(const ProjectContext* project) const {
  if (!project) return {};
  const std::shared_ptr<LocalizeString> record = project->selectedString();
  const std::shared_ptr<Language> language = project->selectedLanguage();
  if (!record || !language) return {};
  return std::string(record->languagesDict().find(language->code()).value_or(std::string_view()));
}

void LocalizeString::setTranslationForSelectedString(std::string_view text, ProjectContext* project, EditKind kind) {
  if (!project) return;
  const std::shared_ptr<LocalizeString> record = project->selectedString();
  const std::shared_ptr<Language> language = project->selectedLanguage();
  if (!record || !language) return;
  std::optional<std::string> after;
  if (!text.empty()) after = std::string(text);
  project->applyEdit(kind, editOf(record, language->code(), std::move(after)));
}

}  // namespace glossmill
