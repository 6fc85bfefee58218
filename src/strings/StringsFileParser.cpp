#include "strings/StringsFileParser.h"

#include <algorithm>
#include <span>
#include <utility>

#include "strings/PlainLines.h"
#include "text/ByteSearch.h"

namespace glossmill {

namespace {
constexpr std::size_t kMostQuotes = 64;  ///< of a line whose places are kept, from its first
}

/// A line of the comment-free text and the places of its quotes; all places count from the start of the text.
struct StringsFileParser::Line {
  std::string_view text;  ///< from the start of the whole text to the end of the line
  std::size_t start = 0;
  std::span<const std::size_t> quotes;

  bool empty() const { return start == text.size(); }
  std::string_view from(std::size_t place) const { return text.substr(place); }
  std::string_view between(std::size_t quote, std::size_t nextQuote) const {
    return text.substr(quote + 1, nextQuote - quote - 1);
  }
  /// The next one behind a place; the length of the text when there is none. Behind the first of very many, some may be
  /// missing in the list.
  std::size_t quoteBehind(std::size_t place) const {
    const auto known = quotes.first(std::min(quotes.size(), kMostQuotes));
    const auto next = std::upper_bound(known.begin(), known.end(), place);
    if (next != known.end()) return *next;
    if (known.size() < kMostQuotes) return text.size();
    return findByte(text, '"', std::max(place, known.back()) + 1);
  }
};

StringsFileParser::StringsFileParser(KeyReader& keys, TextArena& values, const CancelFlag& canceled)
    : m_keys(keys), m_values(values), m_canceled(canceled) {
  m_keys.restart();
}

void StringsFileParser::feed(std::string_view piece) {
  while (!piece.empty()) {
    if (isAtLineStart()) piece.remove_prefix(takePlainLines(piece));
    if (!piece.empty()) feedLine(piece);
  }
}

/// Outside strings and comments, and nothing is left of an unfinished line.
bool StringsFileParser::isAtLineStart() const {
  return m_remover.state() == CommentRemover::State::Code && m_lineStart == m_clean.text.size();
}

/// Takes the lines in front of the first that needs a closer look, from where they are; returns where that one begins.
std::size_t StringsFileParser::takePlainLines(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    if (text[at] == '\n') {
      countLine();
      ++at;
    } else if (text[at] == '/') {
      const std::size_t end = endOfPlainComment(text, at);
      if (end == at) return at;
      at = end;
    } else {
      const std::optional<PlainEntry> entry =
          text[at] == '"' ? plainEntryAt(text, at, m_keys.expectedKey()) : std::nullopt;
      if (!entry) return at;
      if (countLine()) takePlainEntry(*entry);
      at = entry->end;
    }
  }
  return at;
}

void StringsFileParser::takePlainEntry(const PlainEntry& entry) {
  const auto key = entry.keyIsExpected ? std::optional(m_keys.takeExpected()) : numberOf(entry.key);
  if (key) m_content.entries.push_back({*key, m_values.add(entry.value)});
}

/// Takes the way through the comment remover, up to the next line feed.
void StringsFileParser::feedLine(std::string_view& piece) {
  const std::size_t length = std::min(findByte(piece, '\n', 0) + 1, piece.size());
  dropTakenLines();
  m_remover.feed(piece.substr(0, length), m_clean);
  takeLines();
  m_clean.quotes.resize(std::min(m_clean.quotes.size(), m_firstQuote + kMostQuotes));
  piece.remove_prefix(length);
}

StringsFileContent StringsFileParser::finish() {
  nextLine({m_clean.text, m_lineStart, std::span(m_clean.quotes).subspan(m_firstQuote)});
  m_clean = {};
  return std::move(m_content);
}

void StringsFileParser::takeLines() {
  const std::string_view text = m_clean.text;
  const std::span quotes(m_clean.quotes);
  for (const CleanText::LineEnd& end : m_clean.lineEnds) {
    nextLine({text.substr(0, end.place), m_lineStart, quotes.subspan(m_firstQuote, end.quotesBefore - m_firstQuote)});
    m_lineStart = end.place + 1;
    m_firstQuote = end.quotesBefore;
  }
}

/// Moves the unfinished line to the front.
void StringsFileParser::dropTakenLines() {
  m_clean.lineEnds.clear();
  if (m_lineStart == 0) return;
  m_clean.text.erase(0, m_lineStart);
  m_clean.quotes.erase(m_clean.quotes.begin(), m_clean.quotes.begin() + static_cast<std::ptrdiff_t>(m_firstQuote));
  for (std::size_t& quote : m_clean.quotes) quote -= m_lineStart;
  m_firstQuote = 0;
  m_lineStart = 0;
}

/// Another line begins; false when it is not to be taken any more.
bool StringsFileParser::countLine() {
  ++m_content.lineCount;
  if (m_canceled.isSet()) m_content.canceled = true;
  return !m_content.canceled;
}

void StringsFileParser::nextLine(const Line& line) {
  if (countLine() && !line.empty()) takeLine(line);
}

void StringsFileParser::takeLine(const Line& line) {
  if (line.quotes.empty()) {
    reject(line.from(line.start));
    return;
  }
  if (line.quotes.size() == 1) return;  // a key that is not closed is dropped without a word
  const std::optional<KeyIndex::Number> key = numberOf(line.between(line.quotes[0], line.quotes[1]));
  if (key) takeValue(line, *key);
}

std::optional<KeyIndex::Number> StringsFileParser::numberOf(std::string_view key) {
  const std::optional<KeyIndex::Number> number = m_keys.find(key);
  if (!number) report(StringsFileDiagnostic::Kind::NoMatch, key);
  return number;
}

void StringsFileParser::takeValue(const Line& line, KeyIndex::Number key) {
  const std::size_t keyEnd = line.quotes[1];
  const std::size_t equals = findNearByte(line.text, '=', keyEnd);
  if (equals == line.text.size()) {
    reject(line.from(keyEnd));
    return;
  }
  const std::size_t open = line.quoteBehind(equals);
  if (open == line.text.size()) {
    reject(line.from(equals));
    return;
  }
  const std::size_t close = line.quoteBehind(open);
  if (close == line.text.size()) {
    reject(line.from(open + 1));
    return;
  }
  m_content.entries.push_back({key, m_values.add(line.between(open, close))});
}

void StringsFileParser::report(StringsFileDiagnostic::Kind kind, std::string_view text) {
  m_content.diagnostics.push_back(
      {kind, m_content.diagnosticTexts.add(text), m_content.lineCount, m_content.entries.size()});
}

}  // namespace glossmill
