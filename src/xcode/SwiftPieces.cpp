#include "xcode/SwiftPieces.h"

#include <algorithm>
#include <string>

#include "text/ByteSearch.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

/// An expression may follow these words, so that a "/" behind them does not divide.
bool isKeywordBeforeExpression(std::string_view word) {
  constexpr std::string_view kWords[] = {"return", "in",     "case", "where", "if",   "while",
                                         "else",   "switch", "try",  "await", "throw"};
  return std::find(std::begin(kWords), std::end(kWords), word) != std::end(kWords);
}

/// Behind the byte at `at`, or behind the one that a backslash there protects.
std::size_t afterProtected(std::string_view text, std::size_t at) {
  const bool protects = text[at] == '\\' && at + 1 < text.size() && !isLineEnd(text[at + 1]);
  return at + (protects ? 2 : 1);
}

std::string_view wordBefore(std::string_view text, std::size_t end) {
  constexpr std::size_t kLongest = 8;
  std::size_t begin = end;
  while (begin > 0 && end - begin < kLongest && isWordByte(text[begin - 1])) --begin;
  return text.substr(begin, end - begin);
}

/// Says whether an expression may begin at `at`.
bool expectsExpression(std::string_view text, std::size_t at) {
  std::size_t before = at;
  while (before > 0 && isBlank(text[before - 1])) --before;
  if (before == 0 || isLineEnd(text[before - 1])) return true;
  const char byte = text[before - 1];
  if (isWordByte(byte)) return before < at && isKeywordBeforeExpression(wordBefore(text, before));
  if (byte == '?') return before < at;
  return std::string_view("(,=:[{&|;~").find(byte) != std::string_view::npos;
}

}  // namespace

std::size_t nestedCommentEnd(std::string_view text, std::size_t at) {
  std::size_t depth = 1;
  std::size_t from = at + 2;
  while (depth > 0) {
    const std::size_t slash = findByte(text, '/', from);
    if (slash == text.size()) return slash;
    from = slash + 1;
    if (slash > at + 2 && text[slash - 1] == '*') {
      --depth;
    } else if (from < text.size() && text[from] == '*') {
      ++depth;
      at = slash;
      ++from;
    }
  }
  return from;
}

std::size_t regularExpressionEnd(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  if (end == text.size() || isBlank(text[end]) || !expectsExpression(text, at)) return at;
  while (end < text.size() && !isLineEnd(text[end])) {
    if (text[end] == '/') return end + 1;
    end = afterProtected(text, end);
  }
  return at;
}

std::size_t hashedExpressionEnd(std::string_view text, std::size_t at, std::size_t hashes) {
  const std::string closing = "/" + std::string(hashes, '#');
  std::size_t end = at + 1;
  while (end < text.size() && isBlank(text[end])) ++end;
  const bool hasLines = end < text.size() && isLineEnd(text[end]);
  end = at + 1;
  while (end < text.size() && (hasLines || !isLineEnd(text[end]))) {
    if (text[end] == '/' && text.substr(end, closing.size()) == closing) return end + closing.size();
    end = afterProtected(text, end);
  }
  return end;
}

}  // namespace glossmill
