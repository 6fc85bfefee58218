#include "xcode/SourceReading.h"

#include <optional>
#include <unordered_map>
#include <utility>

#include "text/DecodedFile.h"
#include "xcode/AppleRoutines.h"
#include "xcode/JobsInOrder.h"

namespace glossmill {

namespace {

/// What is known of a header from the first reading.
struct ReadHeader {
  Result<std::string> text;
  std::vector<MacroDefinition> macros;
  std::size_t bytesRead = 0;
};

/// What one source holds.
struct ReadSource {
  std::optional<Error> error;
  SourceCalls calls;
  WholeTexts texts;
  std::size_t bytesRead = 0;
};

std::optional<FileEncoding> encodingOf(const MemberFile& file) {
  return file.encoding ? encodingOfNumber(*file.encoding) : std::nullopt;
}

class SourcesReader {
 public:
  SourcesReader(const std::vector<MemberFile>& sources, const ScanInput& input,
                const std::function<void(Problem)>& report)
      : m_sources(sources), m_input(input), m_report(report) {}

  ReadSources read(const std::vector<Routine>& own) {
    readHeaders();
    if (m_input.canceled.isSet()) return std::move(m_found);
    const RoutineTable inC = routinesInC(own, m_macros);
    const RoutineTable inSwift = routinesInSwift(own);
    JobsInOrder<ReadSource> jobs(m_sources.size(), [&](std::size_t number) {
      return isSwift(m_sources[number].path) ? readSource(number, inSwift, readCallsInSwift)
                                             : readSource(number, inC, readCallsInC);
    });
    for (std::uint32_t number = 0; number < m_sources.size(); ++number) {
      if (m_input.canceled.isSet()) break;
      const FileUrl url(m_sources[number].path);
      m_input.listener.happened(SourceBegins{url});
      takeSource(number, url, jobs.next());
    }
    return std::move(m_found);
  }

 private:
  using ReadCalls = SourceCalls (*)(std::string_view text, const RoutineTable& routines);

  void readHeaders() {
    std::vector<std::uint32_t> headers;
    for (std::uint32_t number = 0; number < m_sources.size(); ++number) {
      if (isHeader(m_sources[number].path)) headers.push_back(number);
    }
    JobsInOrder<ReadHeader> jobs(headers.size(), [&](std::size_t number) { return readHeader(headers[number]); });
    for (const std::uint32_t number : headers) {
      if (m_input.canceled.isSet()) return;
      ReadHeader header = jobs.next();
      for (MacroDefinition& macro : header.macros) m_macros.push_back(std::move(macro));
      m_headers.emplace(number, std::move(header.text));
    }
  }

  // ---- Jobs: two threads do them at a time ----

  ReadHeader readHeader(std::uint32_t number) const {
    ReadHeader header{readMemberText(m_sources[number], m_input.files), {}, 0};
    if (!header.text) return header;
    header.bytesRead = header.text.value().size();
    header.macros = readMacros(header.text.value());
    return header;
  }

  ReadSource readSource(std::size_t number, const RoutineTable& routines, ReadCalls readCalls) const {
    static thread_local FileBuffer buffer;
    const auto header = m_headers.find(static_cast<std::uint32_t>(number));
    std::string decoded;
    const Result<std::string_view> text = header == m_headers.end()
                                              ? readMemberText(m_sources[number], m_input.files, buffer, decoded)
                                              : viewOf(header->second);
    ReadSource source;
    if (text) {
      source.calls = readCalls(text.value(), routines);
      source.texts.addSource(text.value());
      source.bytesRead = text.value().size();
    } else {
      source.error = text.error();
    }
    return source;
  }

  static Result<std::string_view> viewOf(const Result<std::string>& text) {
    if (!text) return text.error();
    return std::string_view(text.value());
  }

  // ---- In the order of the sources ----

  void takeSource(std::uint32_t number, const FileUrl& url, const ReadSource& source) {
    if (source.error) {
      m_input.listener.happened(SourceUnread{url, *source.error});
      m_report({url, 0, 0, "source-unread", source.error->sentence});
      return;
    }
    m_found.calls.add(source.calls, number);
    for (const SourceProblem& problem : source.calls.problems) {
      m_report({url, static_cast<std::uint32_t>(problem.place.line), static_cast<std::uint32_t>(problem.place.column),
                nameOf(problem.kind), problem.text});
    }
    m_found.texts.add(source.texts);
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
  static thread_local FileBuffer buffer;
  const Result<std::string_view> bytes = buffer.read(files, FileUrl(file.path));
  if (!bytes) return bytes.error();
  Result<DecodedFile> decoded = textOfFile(bytes.value(), encodingOf(file));
  if (!decoded) return decoded.error();
  return std::move(decoded.value().text);
}

Result<std::string_view> readMemberText(const MemberFile& file, FileReading& files, FileBuffer& buffer,
                                        std::string& decoded) {
  const Result<std::string_view> bytes = buffer.read(files, FileUrl(file.path));
  if (!bytes) return bytes.error();
  const Result<FileTextView> text = viewOfFile(bytes.value(), encodingOf(file), decoded);
  if (!text) return text.error();
  return text.value().text;
}

}  // namespace glossmill
