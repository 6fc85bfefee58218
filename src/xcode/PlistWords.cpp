#include "xcode/PlistWords.h"

#include <algorithm>

#include "text/ByteSearch.h"

namespace glossmill {

namespace {

/// U+2028 or U+2029.
bool isSeparatorAt(std::string_view text, std::size_t at) {
  return text.substr(at).starts_with("\xE2\x80") && at + 2 < text.size() &&
         (text[at + 2] == '\xA8' || text[at + 2] == '\xA9');
}

constexpr std::size_t kSeparatorBytes = 3;

std::size_t endOfLine(std::string_view text, std::size_t at) {
  const std::size_t end = findEither(text, '\n', '\r', at);
  for (std::size_t lead = findByte(text.substr(0, end), '\xE2', at); lead < end;
       lead = findByte(text.substr(0, end), '\xE2', lead + 1)) {
    if (isSeparatorAt(text, lead)) return lead;
  }
  return end;
}

bool isBareCharacter(char character) {
  return (character >= '-' && character <= ':') || (character >= 'a' && character <= 'z') ||
         (character >= 'A' && character <= 'Z') || character == '_' || character == '$';
}

PlistWord quotedWordAt(std::string_view text, std::size_t at) {
  const char quote = text[at];
  PlistWord word{PlistWord::Kind::Quoted, at + 1, at + 1, 0, false};
  word.end = findEither(text, quote, '\\', word.begin);
  while (word.end < text.size() && text[word.end] == '\\') {
    word.hasEscapes = true;
    word.end = findEither(text, quote, '\\', word.end + 2);
  }
  if (word.end >= text.size()) return {PlistWord::Kind::NotClosed, word.begin, text.size(), text.size(), false};
  word.after = word.end + 1;
  return word;
}

}  // namespace

std::size_t behindMarks(std::string_view text) {
  constexpr std::string_view kMark = "\uFEFF";
  std::size_t at = 0;
  while (text.substr(at).starts_with(kMark)) at += kMark.size();
  return at;
}

std::size_t skipPlistSpace(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    const char character = text[at];
    if (character == ' ' || (character >= '\t' && character <= '\r')) {
      ++at;
    } else if (character == '\xE2' && isSeparatorAt(text, at)) {
      at += kSeparatorBytes;
    } else {
      break;
    }
  }
  return at;
}

std::size_t endOfPlistComment(std::string_view text, std::size_t at) {
  if (at + 1 >= text.size() || text[at] != '/') return at;
  if (text[at + 1] == '/') return endOfLine(text, at + 2);
  if (text[at + 1] != '*') return at;
  for (std::size_t star = findByte(text, '*', at + 2); star + 1 < text.size(); star = findByte(text, '*', star + 1)) {
    if (text[star + 1] == '/') return star + 2;
  }
  return kNotClosed;
}

std::size_t skipPlistGap(std::string_view text, std::size_t at) {
  while (true) {
    at = skipPlistSpace(text, at);
    const std::size_t end = endOfPlistComment(text, at);
    if (end == at || end == kNotClosed) return at;
    at = end;
  }
}

PlistWord plistWordAt(std::string_view text, std::size_t at) {
  if (at >= text.size()) return {};
  if (text[at] == '"' || text[at] == '\'') return quotedWordAt(text, at);
  std::size_t end = at;
  while (end < text.size() && isBareCharacter(text[end])) ++end;
  if (end == at) return {};
  return {PlistWord::Kind::Bare, at, end, end, false};
}

bool isBareWord(std::string_view text) {
  // Two slashes in front would begin a comment.
  return !text.empty() && !text.starts_with("//") && std::all_of(text.begin(), text.end(), isBareCharacter);
}

}  // namespace glossmill
