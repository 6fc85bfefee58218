#include "project/ClassicEntries.h"

#include <algorithm>
#include <optional>

#include "strings/CommentRemover.h"
#include "strings/StringsFileParser.h"
#include "xcode/PlaceCounter.h"

namespace glossmill {

namespace {

constexpr std::size_t kNoPlace = std::string_view::npos;

/// Where a line without comments comes from: places in the text with comments.
struct LineOrigin {
  std::size_t firstCharacter = kNoPlace;
  std::size_t firstQuote = kNoPlace;
};

/// Follows the lines of a text through the comment remover.
class LineOrigins {
 public:
  explicit LineOrigins(std::string_view text) : m_text(text) {}

  std::vector<LineOrigin> find() {
    m_origins.resize(1);
    for (std::size_t begin = 0; begin < m_text.size();) {
      const std::size_t end = std::min(m_text.find('\n', begin), m_text.size() - 1) + 1;
      takeLine(begin, m_text.substr(begin, end - begin));
      begin = end;
    }
    return std::move(m_origins);
  }

 private:
  /// What one line of the text adds belongs to one line without comments, whose line feed may end it.
  void takeLine(std::size_t begin, std::string_view line) {
    const CommentRemover before = m_remover;
    CleanText clean;
    m_remover.feed(line, clean);
    LineOrigin& origin = m_origins.back();
    const bool isWhole = clean.text.size() == line.size();
    if (origin.firstCharacter == kNoPlace && !clean.text.empty() && clean.text != "\n") {
      origin.firstCharacter =
          begin + (isWhole ? 0 : firstOf(before, line, [](const CleanText& some) { return !some.text.empty(); }));
    }
    if (origin.firstQuote == kNoPlace && !clean.quotes.empty()) {
      origin.firstQuote =
          begin + (isWhole ? clean.quotes.front()
                           : firstOf(before, line, [](const CleanText& some) { return !some.quotes.empty(); }));
    }
    if (!clean.lineEnds.empty()) m_origins.emplace_back();
  }

  /// The byte of the line with which the remover's output first is as wanted.
  template <typename IsWanted>
  static std::size_t firstOf(CommentRemover remover, std::string_view line, IsWanted isWanted) {
    CleanText clean;
    for (std::size_t at = 0; at < line.size(); ++at) {
      remover.feed(line.substr(at, 1), clean);
      if (isWanted(clean)) return at;
    }
    return 0;
  }

  std::string_view m_text;
  CommentRemover m_remover;
  std::vector<LineOrigin> m_origins;
};

/// What the parser says of a text whose keys are all known, or all unknown.
StringsFileContent parsed(std::string_view text, const KeyIndex& index, TextArena& values) {
  KeyReader keys(index);
  const CancelFlag canceled;
  StringsFileParser parser(keys, values, canceled);
  parser.feed(text);
  return parser.finish();
}

void setPlace(FileEntry& entry, TextPlace place) {
  entry.line = static_cast<std::uint32_t>(place.line);
  entry.column = static_cast<std::uint32_t>(place.column);
}

}  // namespace

/// The lines on which the parser rejects what it reads, in their order.
class RejectedLines {
 public:
  explicit RejectedLines(const StringsFileContent& content) : m_content(content) {}

  /// To be asked in the order of the lines.
  bool hold(std::int64_t line) {
    while (m_next < m_content.diagnostics.size() && m_content.diagnostics[m_next].line < line) ++m_next;
    return m_next < m_content.diagnostics.size() && m_content.diagnostics[m_next].line == line;
  }

 private:
  const StringsFileContent& m_content;
  std::size_t m_next = 0;
};

/// A first reading, which knows no key, reports each key with its line; a second one, which knows them all, gives the
/// values in the same order, and rejects the lines that have none.
FileEntries classicEntries(std::string_view text) {
  FileEntries file;
  TextArena unused;
  const StringsFileContent unknown = parsed(text, KeyIndex(), unused);
  KeyIndex index;
  for (const StringsFileDiagnostic& line : unknown.diagnostics) {
    if (line.kind == StringsFileDiagnostic::Kind::NoMatch) index.add(line.text.view());
  }
  const StringsFileContent known = parsed(text, index, file.texts);
  const std::vector<LineOrigin> origins = LineOrigins(text).find();
  PlaceCounter counter(text);
  RejectedLines rejected(known);
  for (const StringsFileDiagnostic& line : unknown.diagnostics) {
    const bool hasKey = line.kind == StringsFileDiagnostic::Kind::NoMatch;
    const bool isEntry = !rejected.hold(line.line);
    const LineOrigin& origin = origins[static_cast<std::size_t>(line.line) - 1];
    const std::size_t place = hasKey ? origin.firstQuote : origin.firstCharacter;
    FileEntry entry{file.texts.add(line.text.view()), {}, 0, 0};
    setPlace(entry, counter.at(place == kNoPlace ? 0 : place));
    if (isEntry) entry.value = known.entries[file.entries.size()].value;
    (isEntry ? file.entries : file.rejected).push_back(entry);
  }
  return file;
}

}  // namespace glossmill
