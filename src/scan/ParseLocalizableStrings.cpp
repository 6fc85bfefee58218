#include "scan/ParseLocalizableStrings.h"

#include <span>

#include "model/KeyReader.h"
#include "platform/TextAhead.h"
#include "scan/TranslationColumns.h"
#include "strings/StringsFileParser.h"

namespace glossmill {

namespace {

class StringsFilesPhase {
 public:
  StringsFilesPhase(const ScanInput& input, ScanResult& result)
      : m_input(input),
        m_result(result),
        m_files(input.files),
        m_keys(result.stringList.keys()),
        m_columns(result.stringList.records()) {}

  ScanEnd run() {
    const ScanEnd end = parseAll();
    m_columns.moveIntoRecords();
    return end;
  }

 private:
  void tell(const ScanEvent& event) { m_input.listener.happened(event); }
  ScanEnd parseAll();
  ScanEnd parse(const Language& language);
  ScanEnd store(const Language& language, const StringsFileContent& content);
  void tellDiagnostic(const FileUrl& file, const StringsFileDiagnostic& diagnostic);

  const ScanInput& m_input;
  ScanResult& m_result;
  TextAhead m_files;
  KeyReader m_keys;
  TranslationColumns m_columns;
};

ScanEnd StringsFilesPhase::parseAll() {
  for (const auto& language : *m_result.languagesList) {
    if (m_input.canceled.isSet() || parse(*language) == ScanEnd::Canceled) return ScanEnd::Canceled;
  }
  return ScanEnd::Complete;
}

ScanEnd StringsFilesPhase::parse(const Language& language) {
  const FileUrl& file = language.localizedStringUrl();
  if (file.empty() || language.urlDepth() != Language::kStringsFile) {
    tell(StringsFileMissing{language});
    return ScanEnd::Complete;
  }
  tell(StringsFileBegins{file});
  StringsFileParser parser(m_keys, m_result.stringList.arena(), m_input.canceled);
  const Outcome outcome = m_files.readPieces(file, [&parser](std::string_view piece) { parser.feed(piece); });
  if (!outcome) {
    tell(StringsFileUnread{file, outcome.error()});
    return ScanEnd::Complete;
  }
  const StringsFileContent content = parser.finish();
  tell(LinesCounted{file, content.lineCount});
  if (content.canceled || m_input.canceled.isSet()) return ScanEnd::Canceled;
  return store(language, content);
}

/// A cancel is noticed before the next line, and the lines in front of it count; behind the last one nobody looks.
ScanEnd StringsFilesPhase::store(const Language& language, const StringsFileContent& content) {
  const std::span entries(content.entries);
  for (const StringsFileDiagnostic& diagnostic : content.diagnostics) {
    tellDiagnostic(language.localizedStringUrl(), diagnostic);
    if (!m_input.canceled.isSet() || diagnostic.line == content.lineCount) continue;
    m_columns.add(language.code(), entries.first(diagnostic.entriesBefore));
    return ScanEnd::Canceled;
  }
  m_columns.add(language.code(), entries);
  tell(StringsFileRead{language.localizedStringUrl(), entries.size()});
  return ScanEnd::Complete;
}

void StringsFilesPhase::tellDiagnostic(const FileUrl& file, const StringsFileDiagnostic& diagnostic) {
  if (diagnostic.kind == StringsFileDiagnostic::Kind::NoMatch) {
    tell(EntryWithoutMatch{file, diagnostic.text.view(), diagnostic.line});
  } else {
    tell(EntryRejected{file, diagnostic.text.view(), diagnostic.line});
  }
}

}  // namespace

ScanEnd parseLocalizableStringsList(const ScanInput& input, ScanResult& result) {
  return StringsFilesPhase(input, result).run();
}

}  // namespace glossmill
