#include "scan/ParseLocalizableStrings.h"

#include "model/KeyReader.h"
#include "platform/ReadText.h"
#include "scan/TranslationColumns.h"
#include "strings/StringsFileParser.h"

namespace glossmill {

namespace {

class StringsFilesPhase {
 public:
  StringsFilesPhase(const ScanInput& input, ScanResult& result)
      : m_input(input), m_result(result), m_keys(result.stringList.keys()), m_columns(result.stringList.records()) {}

  ScanEnd run() {
    for (const auto& language : *m_result.languagesList) {
      if (m_input.canceled.isSet()) return ScanEnd::Canceled;
      if (parse(*language) == ScanEnd::Canceled) return ScanEnd::Canceled;
    }
    m_columns.moveIntoRecords();
    return ScanEnd::Complete;
  }

 private:
  void tell(const ScanEvent& event) { m_input.listener.happened(event); }
  ScanEnd parse(const Language& language);
  bool tellDiagnostics(const FileUrl& file, const StringsFileContent& content);
  void tellDiagnostic(const FileUrl& file, const StringsFileDiagnostic& diagnostic);

  const ScanInput& m_input;
  ScanResult& m_result;
  KeyReader m_keys;
  TranslationColumns m_columns;
};

ScanEnd StringsFilesPhase::parse(const Language& language) {
  const FileUrl& file = language.localizedStringUrl();
  if (file.empty() || language.urlDepth() != Language::kStringsFile) {
    tell(StringsFileMissing{language});
    return ScanEnd::Complete;
  }
  tell(StringsFileBegins{file});
  StringsFileParser parser(m_keys, m_result.stringList.arena(), m_input.canceled);
  const Outcome outcome =
      readTextPieces(m_input.files, file, [&parser](std::string_view piece) { parser.feed(piece); });
  if (!outcome) {
    tell(StringsFileUnread{file, outcome.error()});
    return ScanEnd::Complete;
  }
  const StringsFileContent content = parser.finish();
  tell(LinesCounted{file, content.lineCount});
  if (content.canceled || !tellDiagnostics(file, content)) return ScanEnd::Canceled;
  m_columns.add(language.code(), content.entries);
  return ScanEnd::Complete;
}

/// A cancel is noticed before the next line; behind the last one nobody looks.
bool StringsFilesPhase::tellDiagnostics(const FileUrl& file, const StringsFileContent& content) {
  for (const StringsFileDiagnostic& diagnostic : content.diagnostics) {
    tellDiagnostic(file, diagnostic);
    if (m_input.canceled.isSet() && diagnostic.line < content.lineCount) return false;
  }
  return true;
}

void StringsFilesPhase::tellDiagnostic(const FileUrl& file, const StringsFileDiagnostic& diagnostic) {
  if (diagnostic.kind == StringsFileDiagnostic::Kind::NoMatch) {
    tell(EntryWithoutMatch{file, diagnostic.text, diagnostic.line});
  } else {
    tell(EntryRejected{file, diagnostic.text, diagnostic.line});
  }
}

}  // namespace

ScanEnd parseLocalizableStringsList(const ScanInput& input, ScanResult& result) {
  return StringsFilesPhase(input, result).run();
}

}  // namespace glossmill
