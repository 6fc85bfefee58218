#include "search/SourceExcerpt.h"

#include <algorithm>
#include <utility>

#include "platform/ReadBytes.h"
#include "text/Utf16.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::size_t kLongestCall = 4000;

bool isNameByte(char byte) {
  const char lower = static_cast<char>(byte | 0x20);
  return (lower >= 'a' && lower <= 'z') || (byte >= '0' && byte <= '9') || byte == '_' || (byte & 0x80) != 0;
}

bool isBlank(char byte) {
  return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// Behind the literal that begins here, or the end of the text.
std::size_t behindLiteral(std::string_view text, std::size_t at) {
  const std::string_view mark = text.substr(at).starts_with("\"\"\"") ? "\"\"\"" : text.substr(at, 1);
  for (at += mark.size(); at < text.size(); ++at) {
    if (text[at] == '\\') {
      ++at;
    } else if (text.substr(at).starts_with(mark)) {
      return at + mark.size();
    }
  }
  return text.size();
}

std::size_t behind(std::string_view text, std::string_view mark, std::size_t from) {
  const std::size_t place = text.find(mark, from);
  return place == std::string_view::npos ? text.size() : place + mark.size();
}

/// Behind the literal or the comment that begins here, else behind the byte.
std::size_t behindPiece(std::string_view text, std::size_t at) {
  if (text[at] == '"' || text[at] == '\'') return behindLiteral(text, at);
  if (text.substr(at).starts_with("//")) return behind(text, "\n", at);
  if (text.substr(at).starts_with("/*")) return behind(text, "*/", at);
  return at + 1;
}

/// Behind the parenthesis that closes the one here; nothing when none does.
std::optional<std::size_t> behindParenthesis(std::string_view text, std::size_t at) {
  std::size_t depth = 0;
  while (at < text.size()) {
    if (text[at] == '(') ++depth;
    if (text[at] == ')' && --depth == 0) return at + 1;
    at = behindPiece(text, at);
  }
  return std::nullopt;
}

/// The lines of a text by their begins and lengths, without their ends.
std::vector<TextRange> linesOf(std::string_view text) {
  std::vector<TextRange> lines;
  std::size_t begin = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\n' && text[at] != '\r') continue;
    lines.push_back({begin, at - begin});
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
    begin = at + 1;
  }
  lines.push_back({begin, text.size() - begin});
  return lines;
}

/// The byte of a line at which so many UTF-16 units stand in front.
std::size_t byteOfColumn(std::string_view line, std::uint32_t column) {
  std::string_view rest = line;
  std::size_t units = 1;
  while (!rest.empty() && units < column) units += takeCodePoint(rest) > 0xFFFF ? 2 : 1;
  return line.size() - rest.size();
}

TextRange common(TextRange one, TextRange other) {
  const std::size_t begin = std::max(one.begin, other.begin);
  const std::size_t end = std::min(one.end(), other.end());
  return begin < end ? TextRange{begin, end - begin} : TextRange{begin, 0};
}

ExcerptLine excerptLine(std::string_view source, TextRange line, std::size_t number, TextRange call) {
  const TextRange mark = common(line, call);
  return {static_cast<std::uint32_t>(number), std::string(source.substr(line.begin, line.length)),
          mark.length == 0 ? TextRange{} : TextRange{mark.begin - line.begin, mark.length}};
}

}  // namespace

TextRange callAt(std::string_view source, std::size_t begin) {
  const std::string_view text = source.substr(0, std::min(source.size(), begin + kLongestCall));
  std::size_t end = begin;
  while (end < text.size() && isNameByte(text[end])) ++end;
  std::size_t open = end;
  while (open < text.size() && isBlank(text[open])) ++open;
  if (end == begin || open == text.size() || text[open] != '(') return {begin, end - begin};
  return {begin, behindParenthesis(text, open).value_or(end) - begin};
}

std::vector<ExcerptLine> excerptOf(std::string_view source, std::uint32_t line, std::uint32_t column,
                                   std::uint32_t linesAround) {
  const std::vector<TextRange> lines = linesOf(source);
  if (line == 0 || line > lines.size()) return {};
  const TextRange& there = lines[line - 1];
  const TextRange call = callAt(source, there.begin + byteOfColumn(source.substr(there.begin, there.length), column));
  const std::size_t first = line > linesAround ? line - linesAround : 1;
  const std::size_t last = std::min<std::size_t>(std::size_t{line} + linesAround, lines.size());
  std::vector<ExcerptLine> excerpt;
  for (std::size_t number = first; number <= last; ++number) {
    excerpt.push_back(excerptLine(source, lines[number - 1], number, call));
  }
  return excerpt;
}

Result<std::vector<ExcerptLine>> readExcerpt(FileReading& files, const SourcePlace& place,
                                             std::optional<FileEncoding> otherwise, std::uint32_t linesAround) {
  Result<std::string> bytes = readBytes(files, place.file);
  if (!bytes) return bytes.error();
  const Result<DecodedFile> file = textOfFile(bytes.value(), otherwise);
  if (!file) return file.error();
  return excerptOf(file.value().text, place.line, place.column, linesAround);
}

std::vector<SourcePlace> placesOfLiteral(std::string_view source, const FileUrl& file, std::string_view text,
                                         std::size_t most) {
  const std::vector<TextRange> lines = linesOf(source);
  std::vector<SourcePlace> places;
  std::size_t line = 0;
  for (std::size_t at = 0; at < source.size() && places.size() < most;) {
    const std::size_t next = behindPiece(source, at);
    const bool isLiteral = source[at] == '"' && next == at + text.size() + 2;
    if (isLiteral && source.substr(at + 1, text.size()) == text) {
      while (line + 1 < lines.size() && lines[line + 1].begin <= at) ++line;
      const std::size_t units = utf16Length(source.substr(lines[line].begin, at - lines[line].begin));
      places.push_back({file, static_cast<std::uint32_t>(line + 1), static_cast<std::uint32_t>(units + 1)});
    }
    at = next;
  }
  return places;
}

SourceState sourceState(const std::optional<FileStamp>& scanned, const std::optional<FileStamp>& now) {
  if (!now) return SourceState::Gone;
  if (!scanned) return SourceState::NotKnown;
  return *scanned == *now ? SourceState::AsScanned : SourceState::Changed;
}

}  // namespace glossmill
