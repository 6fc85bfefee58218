#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scan/TreeWalk.h"
#include "support/InMemoryFiles.h"

namespace glossmill {

/// A tree below /P that is walked, and what the walk told its listener.
class WalkedTree : private TreeWalkListener {
 public:
  /// Without the text of a project file every source file is a member.
  void walk(const std::optional<std::string>& projectFile = std::nullopt) {
    std::optional<ProjectFileNames> members;
    if (projectFile) members.emplace(*projectFile);
    TreeWalk walk({files, isoTable, members ? &*members : nullptr, canceled}, state, languages, *this);
    walk.contentsOfUrl(FileUrl("/P"));
    cutOff = walk.cutOff();
  }

  void add(std::string_view path) { files.addFile("/P/" + std::string(path), ""); }
  void addDirectory(std::string_view path) { files.addDirectory("/P/" + std::string(path)); }
  void addLink(std::string_view path, std::string_view target) { files.addLink("/P/" + std::string(path), target); }

  /// Code, depth and path of each language: "de -1 /P/de.lproj/Localizable.strings".
  std::vector<std::string> languageLines() const {
    std::vector<std::string> lines;
    for (const auto& language : languages) {
      lines.push_back(language->iso639() + " " + std::to_string(language->urlDepth()) + " " +
                      language->localizedStringUrl().path());
    }
    return lines;
  }

  InMemoryFiles files;
  IsoTable isoTable = IsoTable::fromCsv(
                          "deu;de;German\reng;en;English\rfra;fr;French\rgsw;;Swiss German\r"
                          "twi;tw;Twi\rtwo;;Two\r")
                          .value();
  CancelFlag canceled;
  ScanMemory state;
  LanguageArray languages;
  std::vector<std::string> heard;    ///< "English is en", "strings of en"
  std::vector<std::string> sources;  ///< paths
  std::optional<FileUrl> cutOff;

 private:
  void oldLanguageName(std::string_view directoryName, std::string_view code) override {
    heard.push_back(std::string(directoryName) + " is " + std::string(code));
  }
  void foundStringsFile(const Language& language, const FileUrl&) override {
    heard.push_back("strings of " + language.iso639());
  }
  void sourceFile(const FileUrl& file, const Result<std::unique_ptr<ByteReader>>& opened) override {
    sources.push_back(file.path());
    if (!opened) heard.push_back(std::string(file.lastPathComponent()) + ": " + opened.error().sentence);
  }
};

}  // namespace glossmill
