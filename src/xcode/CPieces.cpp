#include "xcode/CPieces.h"

#include <algorithm>
#include <string>

#include "text/ByteSearch.h"
#include "xcode/AnyByteSearch.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

constexpr std::size_t kLongestDelimiter = 16;

/// Behind the second of the two bytes that begin a comment.
std::size_t afterOpening(std::string_view text, std::size_t at) {
  return afterContinuations(text, at + 1) + 1;
}

/// The "(" of the raw string, or the length of the text when what stands behind the quote is no delimiter.
std::size_t rawStringOpening(std::string_view text, std::size_t quote) {
  const std::size_t last = std::min(quote + 1 + kLongestDelimiter, text.size() - 1);
  for (std::size_t at = quote + 1; at <= last; ++at) {
    const char byte = text[at];
    if (byte == '(') return at;
    if (isBlank(byte) || isLineEnd(byte) || byte == '"' || byte == ')' || byte == '\\') break;
  }
  return text.size();
}

}  // namespace

std::size_t lineCommentEnd(std::string_view text, std::size_t at) {
  const std::size_t begin = afterOpening(text, at);
  std::size_t end = findEither(text, '\n', '\r', begin);
  while (end < text.size()) {
    const std::size_t next = afterLineEnd(text, end);
    if (beforeContinuations(text, next, begin) == next) return end;
    end = findEither(text, '\n', '\r', next);
  }
  return end;
}

std::size_t blockCommentEnd(std::string_view text, std::size_t at) {
  const std::size_t begin = afterOpening(text, at);
  std::size_t slash = findByte(text, '/', begin);
  while (slash < text.size()) {
    const std::size_t star = beforeContinuations(text, slash, begin);
    if (star > begin && text[star - 1] == '*') return slash + 1;
    slash = findByte(text, '/', slash + 1);
  }
  return slash;
}

LiteralEnd quotedEnd(std::string_view text, std::size_t at) {
  const char quote = text[at++];
  const auto next = quote == '"' ? findAnyOf<'"', '\\', '\n', '\r'> : findAnyOf<'\'', '\\', '\n', '\r'>;
  for (at = next(text, at); at < text.size() && !isLineEnd(text[at]); at = next(text, at)) {
    if (text[at] == quote) return {at + 1};
    const std::size_t behind = afterContinuations(text, at);
    at = behind != at ? behind : afterContinuations(text, at + 1) + 1;
  }
  return {std::min(at, text.size()), true};
}

LiteralEnd rawStringEnd(std::string_view text, std::size_t quote) {
  const std::size_t opening = rawStringOpening(text, quote);
  std::string closing = ")";
  closing.append(text, quote + 1, opening - quote - 1).append("\"");
  const std::size_t found = text.find(closing, opening);
  if (found == std::string_view::npos) return {text.size(), true};
  return {found + closing.size()};
}

std::size_t rawStringBegin(std::string_view text, std::size_t quote, std::size_t floor) {
  if (quote == floor || text[quote - 1] != 'R') return quote;
  std::size_t word = quote;
  while (word > floor && quote - word < 4 && isWordByte(text[word - 1])) --word;
  const std::string_view prefix = text.substr(word, quote - word);
  constexpr std::string_view kPrefixes[] = {"R", "LR", "uR", "UR", "u8R"};
  if (std::find(std::begin(kPrefixes), std::end(kPrefixes), prefix) == std::end(kPrefixes)) return quote;
  const std::size_t before = beforeContinuations(text, word, floor);
  const bool continued = before != word && before > floor && isWordByte(text[before - 1]);
  return continued || rawStringOpening(text, quote) == text.size() ? quote : word;
}

}  // namespace glossmill
