#include "scan/TreeWalk.h"

#include <algorithm>

#include "text/Utf16.h"

namespace glossmill {

void TreeWalk::contentsOfUrl(const FileUrl& directory) {
  const auto entries = m_input.files.list(directory);
  ++m_state.actualDirectoryDepth;  // also when the listing failed
  if (!entries) return;
  m_trail.enter(directory);
  for (const DirectoryEntry& entry : entries.value()) {
    if (m_input.canceled.isSet()) break;
    const FileUrl url = directory.appending(entry.name);
    if (entry.kind == EntryKind::Directory) directoryEntry(url, entry);
    if (entry.kind == EntryKind::File) fileEntry(url);
  }
  m_trail.leave();
}

void TreeWalk::directoryEntry(const FileUrl& url, const DirectoryEntry& entry) {
  if (url.pathExtension() == "lproj") addLanguage(url.lastPathComponentWithoutExtension(), url);
  if (!m_trail.leadsBack(url, entry)) contentsOfUrl(url);
}

void TreeWalk::fileEntry(const FileUrl& url) {
  const std::string_view name = url.lastPathComponent();
  if (name == "Localizable.strings" && m_state.actualLanguage) {
    m_listener.foundStringsFile(*m_state.actualLanguage, url);
    m_state.actualLanguage->setLocalizedStringUrl(url);
    m_state.actualLanguage->setUrlDepth(Language::kStringsFile);
  }
  if (url.pathExtension() != "m") return;
  if (!m_input.members || m_input.members->mentions(name)) m_listener.sourceFile(url);
}

void TreeWalk::addLanguage(std::string_view directoryName, const FileUrl& directory) {
  const std::string code = languageCodeForDirectoryName(m_input.isoTable, directoryName);
  if (code != directoryName) m_listener.oldLanguageName(directoryName, code);
  const std::shared_ptr<Language> known = languageWithCode(LanguageCode(code));
  if (!known) {
    createLanguage(code, directory);
    return;
  }
  // The counter only rises, so within one walk the first directory of a language stays its directory.
  if (m_state.actualDirectoryDepth < known->urlDepth() && known->urlDepth() >= 0) {
    known->setLocalizedStringUrl(directory);
    known->setUrlDepth(m_state.actualDirectoryDepth);
  }
}

std::shared_ptr<Language> TreeWalk::languageWithCode(LanguageCode code) const {
  const auto found =
      std::find_if(m_languages.begin(), m_languages.end(),
                   [code](const std::shared_ptr<Language>& language) { return language->code() == code; });
  return found == m_languages.end() ? nullptr : *found;
}

void TreeWalk::createLanguage(const std::string& code, const FileUrl& directory) {
  auto language = std::make_shared<Language>();
  language->setIso639(code);
  language->setDescription(m_input.isoTable.nameOf(code));
  language->setUrlDepth(m_state.actualDirectoryDepth);
  language->setLocalizedStringUrl(directory);
  m_languages.push_back(language);
  m_state.actualLanguage = std::move(language);
}

std::string languageCodeForDirectoryName(const IsoTable& table, std::string_view name) {
  std::string candidate(name);
  const std::size_t length = utf16Length(name);
  for (const std::string& code : table.codesOf(name)) {
    if (length > code.size()) candidate = code;
  }
  return candidate;
}

}  // namespace glossmill
