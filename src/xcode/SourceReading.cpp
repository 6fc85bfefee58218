#include "xcode/SourceReading.h"

#include <unordered_map>
#include <utility>

#include "platform/ReadBytes.h"
#include "text/DecodedFile.h"
#include "xcode/AppleRoutines.h"

namespace glossmill {

namespace {

class SourcesReader {
 public:
  SourcesReader(const std::vector<MemberFile>& sources, const ScanInput& input,
                const std::function<void(Problem)>& report)
      : m_sources(sources), m_input(input), m_report(report) {}

  ReadSources read(const std::vector<Routine>& own) {
    readHeaders();
    const RoutineTable inC = routinesInC(own, m_macros);
    const RoutineTable inSwift = routinesInSwift(own);
    for (std::uint32_t number = 0; number < m_sources.size(); ++number) {
      if (m_input.canceled.isSet()) return std::move(m_found);
      readSource(number, isSwift(m_sources[number].path) ? inSwift : inC);
    }
    return std::move(m_found);
  }

 private:
  void readHeaders() {
    for (std::uint32_t number = 0; number < m_sources.size(); ++number) {
      if (m_input.canceled.isSet()) return;
      if (!isHeader(m_sources[number].path)) continue;
      const auto text = m_headers.emplace(number, readMemberText(m_sources[number], m_input.files)).first;
      if (!text->second) continue;
      for (MacroDefinition& macro : readMacros(text->second.value())) m_macros.push_back(std::move(macro));
    }
  }

  void readSource(std::uint32_t number, const RoutineTable& routines) {
    const MemberFile& source = m_sources[number];
    const FileUrl url(source.path);
    m_input.listener.happened(SourceBegins{url});
    const auto header = m_headers.find(number);
    const Result<std::string> text =
        header == m_headers.end() ? readMemberText(source, m_input.files) : std::move(header->second);
    if (!text) {
      m_input.listener.happened(SourceUnread{url, text.error()});
      m_report({url, 0, 0, "source-unread", text.error().sentence});
      return;
    }
    const SourceCalls calls =
        isSwift(source.path) ? readCallsInSwift(text.value(), routines) : readCallsInC(text.value(), routines);
    m_found.calls.add(calls, number);
    for (const SourceProblem& problem : calls.problems) {
      m_report({url, static_cast<std::uint32_t>(problem.place.line), static_cast<std::uint32_t>(problem.place.column),
                nameOf(problem.kind), problem.text});
    }
    m_found.texts.addSource(text.value());
  }

  const std::vector<MemberFile>& m_sources;
  const ScanInput& m_input;
  const std::function<void(Problem)>& m_report;
  std::unordered_map<std::uint32_t, Result<std::string>> m_headers;
  std::vector<MacroDefinition> m_macros;
  ReadSources m_found;
};

}  // namespace

ReadSources readSources(const std::vector<MemberFile>& sources, const std::vector<Routine>& own, const ScanInput& input,
                        const std::function<void(Problem)>& report) {
  return SourcesReader(sources, input, report).read(own);
}

Result<std::string> readMemberText(const MemberFile& file, FileReading& files) {
  Result<std::string> bytes = readBytes(files, FileUrl(file.path));
  if (!bytes) return bytes.error();
  const std::optional<FileEncoding> otherwise = file.encoding ? encodingOfNumber(*file.encoding) : std::nullopt;
  Result<DecodedFile> decoded = textOfFile(std::move(bytes.value()), otherwise);
  if (!decoded) return decoded.error();
  return std::move(decoded.value().text);
}

}  // namespace glossmill
