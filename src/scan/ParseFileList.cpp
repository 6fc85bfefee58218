#include "scan/ParseFileList.h"

#include <utility>

#include "platform/ReadText.h"
#include "scan/PackageSearch.h"
#include "scan/SourceScanner.h"
#include "scan/TreeWalk.h"

namespace glossmill {

namespace {

class FileListPhase : private TreeWalkListener {
 public:
  FileListPhase(const ScanInput& input, ScanMemory& memory, ScanResult& result)
      : m_input(input), m_memory(memory), m_result(result) {}

  void run(const FileUrl& directory) {
    m_memory.projectPackage = findProjectPackage(m_input.files, directory, m_input.canceled,
                                                 [this](const FileUrl& first) { tellCutOff(first); });
    if (!m_memory.projectPackage) {
      tell(NoPackageFound{});
      return;
    }
    tell(PackageFound{*m_memory.projectPackage});
    readProjectFile(m_memory.projectPackage->appending("project.pbxproj"));
    m_memory.actualDirectoryDepth = 0;
    walk(directory);
  }

 private:
  void tell(const ScanEvent& event) { m_input.listener.happened(event); }
  void tellCutOff(const FileUrl& directory);
  void readProjectFile(const FileUrl& file);
  void walk(const FileUrl& directory);
  void oldLanguageName(std::string_view directoryName, std::string_view code) override {
    tell(OldLanguageName{directoryName, code});
  }
  void foundStringsFile(const Language& language, const FileUrl& file) override {
    tell(StringsFileFound{language, file});
  }
  void sourceFile(const FileUrl& file, const Result<std::unique_ptr<ByteReader>>& opened) override;

  const ScanInput& m_input;
  ScanMemory& m_memory;
  ScanResult& m_result;
  std::string m_text;  ///< of the source that is being read
  bool m_isCutOffTold = false;
};

/// Once: the search and the walk meet the same links.
void FileListPhase::tellCutOff(const FileUrl& directory) {
  if (!std::exchange(m_isCutOffTold, true)) tell(LinksCutOff{directory});
}

/// What was read of a project file before stays when this one cannot be read.
void FileListPhase::readProjectFile(const FileUrl& file) {
  Result<std::string> text = readText(m_input.files, file);
  if (text) {
    m_memory.projectFileData = std::move(text.value());
  } else {
    tell(ProjectFileUnread{file, text.error()});
  }
}

void FileListPhase::walk(const FileUrl& directory) {
  std::optional<ProjectFileNames> members;
  if (m_memory.projectFileData) members.emplace(*m_memory.projectFileData);
  TreeWalk walk({m_input.files, m_input.isoTable, members ? &*members : nullptr, m_input.canceled}, m_memory,
                *m_result.languagesList, *this);
  walk.contentsOfUrl(directory);
  if (walk.cutOff()) tellCutOff(*walk.cutOff());
}

void FileListPhase::sourceFile(const FileUrl& file, const Result<std::unique_ptr<ByteReader>>& opened) {
  m_memory.actualParseFileName = file;
  tell(SourceBegins{file});
  m_result.fileList.push_back(file);
  const Result<std::string_view> text =
      opened ? readText(*opened.value(), m_text) : Result<std::string_view>(opened.error());
  if (!text) {
    tell(SourceUnread{file, text.error()});
    return;
  }
  const SourceScan scan =
      scanSource(text.value(), m_input.canceled, [&](std::string_view excerpt, CallRejection reason) {
        tell(CallRejected{file, excerpt, reason});
      });
  if (!scan.canceled) m_result.stringList.add(scan.strings, file);
}

}  // namespace

void parseFileList(const FileUrl& directory, const ScanInput& input, ScanMemory& memory, ScanResult& result) {
  FileListPhase(input, memory, result).run(directory);
}

}  // namespace glossmill
