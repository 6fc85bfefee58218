#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/IsoTable.h"
#include "model/Language.h"
#include "model/ProjectRules.h"
#include "platform/CancelFlag.h"
#include "platform/Files.h"
#include "scan/DirectoryTrail.h"
#include "scan/ProjectFileNames.h"

namespace glossmill {

/// Hears of what a walk meets, in its order and on its thread.
class TreeWalkListener {
 public:
  virtual ~TreeWalkListener() = default;
  virtual void oldLanguageName(std::string_view directoryName, std::string_view code) = 0;
  /// The language is given its file afterwards.
  virtual void foundStringsFile(const Language& language, const FileUrl& file) = 0;
  /// A member source that exists, open unless it cannot be opened.
  virtual void sourceFile(const FileUrl& file, const Result<std::unique_ptr<ByteReader>>& opened) = 0;
};

/// What a walk works on; all of it outlives the walk.
struct TreeWalkInput {
  FileReading& files;
  const IsoTable& isoTable;
  const ProjectFileNames* members;  ///< null when no project file was ever read: then every source file is a member
  const CancelFlag& canceled;
};

/// Visits every directory below one: each `.lproj` becomes a language, each `Localizable.strings` goes to the language
/// made last, whatever directory it lies in (rule 8), and each member source file to the listener. An entry that is
/// gone, or out of reach, when the walk comes to it is passed over.
class TreeWalk {
 public:
  TreeWalk(const TreeWalkInput& input, ScanMemory& state, LanguageArray& languages, TreeWalkListener& listener)
      : m_input(input), m_state(state), m_languages(languages), m_listener(listener), m_trail(input.files) {}

  /// Walks one directory and everything below it.
  void contentsOfUrl(const FileUrl& directory);
  /// The first directory that was left out because too many were entered through links.
  const std::optional<FileUrl>& cutOff() const { return m_trail.cutOff(); }

 private:
  std::size_t expectSources(const FileUrl& directory, std::span<const DirectoryEntry> entries);
  bool isMember(std::string_view name) const;
  void visit(const FileUrl& url, const DirectoryEntry& entry);
  void directoryEntry(const FileUrl& url, const DirectoryEntry& entry);
  void enter(const FileUrl& directory, const DirectoryEntry& listed,
             const Result<std::vector<DirectoryEntry>>& entries);
  void fileEntry(const FileUrl& url, const DirectoryEntry& entry);
  void stringsFile(const FileUrl& url);
  void sourceFile(const FileUrl& url, const DirectoryEntry& entry);
  void addLanguage(std::string_view directoryName, const FileUrl& directory);
  std::shared_ptr<Language> languageWithCode(LanguageCode code) const;
  void createLanguage(const std::string& code, const FileUrl& directory);

  TreeWalkInput m_input;
  ScanMemory& m_state;
  LanguageArray& m_languages;
  TreeWalkListener& m_listener;
  DirectoryTrail m_trail;
};

/// The code for a directory named like a language of the table (English gives en, rule 9); the name itself otherwise.
std::string languageCodeForDirectoryName(const IsoTable& table, std::string_view name);

}  // namespace glossmill
