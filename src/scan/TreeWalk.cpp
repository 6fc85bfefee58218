#include "scan/TreeWalk.h"

#include <algorithm>
#include <utility>

#include "text/Utf16.h"

namespace glossmill {

namespace {
constexpr std::string_view kStringsFileName = "Localizable.strings";
}

void TreeWalk::contentsOfUrl(const FileUrl& directory) {
  enter(directory, {}, m_input.files.list(directory));
}

void TreeWalk::enter(const FileUrl& directory, const DirectoryEntry& listed,
                     const Result<std::vector<DirectoryEntry>>& entries) {
  ++m_state.actualDirectoryDepth;  // also when the listing failed
  if (!entries) return;
  m_trail.enter(directory, listed);
  std::span<const DirectoryEntry> rest = entries.value();
  for (std::size_t announced = 0; !rest.empty() && !m_input.canceled.isSet(); rest = rest.subspan(1), --announced) {
    if (announced == 0) announced = expectSources(directory, rest);
    visit(directory.appending(rest.front().name), rest.front());
  }
  m_trail.leave();
}

/// Tells the disk which sources come in front of the next directory; returns how many entries it looked at, at least
/// one.
std::size_t TreeWalk::expectSources(const FileUrl& directory, std::span<const DirectoryEntry> entries) {
  std::vector<FileUrl> sources;
  std::size_t count = 0;
  for (; count < entries.size() && entries[count].kind == EntryKind::File; ++count) {
    const DirectoryEntry& entry = entries[count];
    if (entry.isRegular && isMember(entry.name)) sources.push_back(directory.appending(entry.name));
  }
  if (sources.size() > 1) m_input.files.expect(std::move(sources));
  return std::max<std::size_t>(count, 1);
}

bool TreeWalk::isMember(std::string_view name) const {
  return extensionOfName(name) == "m" && (!m_input.members || m_input.members->mentions(name));
}

/// What the listing said of an entry may be over by now. To ask about each would cost more than the walk: it is asked
/// before a strings file counts and for what was out of reach, and for the others when they cannot be listed or opened.
/// What has become of another kind since is followed once.
void TreeWalk::visit(const FileUrl& url, const DirectoryEntry& entry) {
  const bool isAsked = entry.kind == EntryKind::Missing || entry.name == kStringsFileName;
  const EntryKind kind = isAsked ? m_input.files.kindOf(url) : entry.kind;
  if (kind == EntryKind::Directory) directoryEntry(url, entry);
  if (kind == EntryKind::File) fileEntry(url, entry);
}

void TreeWalk::directoryEntry(const FileUrl& url, const DirectoryEntry& entry) {
  const bool staysOut = m_trail.keepsOut(url, entry);
  const auto entries = staysOut ? std::vector<DirectoryEntry>() : m_input.files.list(url);
  const EntryKind kind = entries ? EntryKind::Directory : m_input.files.kindOf(url);
  if (kind == EntryKind::File && entry.kind == EntryKind::Directory) fileEntry(url, entry);
  if (kind != EntryKind::Directory) return;
  if (url.pathExtension() == "lproj") addLanguage(url.lastPathComponentWithoutExtension(), url);
  if (!staysOut) enter(url, entry, entries);
}

void TreeWalk::fileEntry(const FileUrl& url, const DirectoryEntry& entry) {
  if (entry.name == kStringsFileName && m_state.actualLanguage) stringsFile(url);
  if (isMember(entry.name)) sourceFile(url, entry);
}

void TreeWalk::stringsFile(const FileUrl& url) {
  m_listener.foundStringsFile(*m_state.actualLanguage, url);
  m_state.actualLanguage->setLocalizedStringUrl(url);
  m_state.actualLanguage->setUrlDepth(Language::kStringsFile);
}

void TreeWalk::sourceFile(const FileUrl& url, const DirectoryEntry& entry) {
  const Result<std::unique_ptr<ByteReader>> opened = m_input.files.open(url);
  const EntryKind kind = opened ? EntryKind::File : m_input.files.kindOf(url);
  if (kind == EntryKind::Directory && entry.kind == EntryKind::File) directoryEntry(url, entry);
  if (kind == EntryKind::File) m_listener.sourceFile(url, opened);
}

void TreeWalk::addLanguage(std::string_view directoryName, const FileUrl& directory) {
  const std::string code = languageCodeForDirectoryName(m_input.isoTable, directoryName);
  if (code != directoryName) m_listener.oldLanguageName(directoryName, code);
  const std::shared_ptr<Language> known = languageWithCode(LanguageCode(code));
  if (!known) {
    createLanguage(code, directory);
    return;
  }
  // The counter only rises, so within one walk the first directory of a language stays its directory (rule 7).
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
