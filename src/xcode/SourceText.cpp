#include "xcode/SourceText.h"

#include "text/ByteSearch.h"

namespace glossmill {

namespace {

/// Where the one continuation begins that ends at `at`, or `at`.
std::size_t beforeContinuation(std::string_view text, std::size_t at, std::size_t floor) {
  if (at == floor || !isLineEnd(text[at - 1])) return at;
  std::size_t start = at - 1;
  if (text[start] == '\n' && start > floor && text[start - 1] == '\r') --start;
  while (start > floor && isBlank(text[start - 1])) --start;
  return start > floor && text[start - 1] == '\\' ? start - 1 : at;
}

}  // namespace

std::size_t beforeContinuations(std::string_view text, std::size_t at, std::size_t floor) {
  std::size_t start = beforeContinuation(text, at, floor);
  while (start != at) {
    at = start;
    start = beforeContinuation(text, at, floor);
  }
  return at;
}

std::string withoutContinuations(std::string_view source) {
  std::string plain;
  std::size_t at = 0;
  while (at < source.size()) {
    const std::size_t backslash = findByte(source, '\\', at);
    plain.append(source, at, backslash - at);
    at = afterContinuations(source, backslash);
    if (at != backslash || at == source.size()) continue;
    plain += '\\';
    ++at;
  }
  return plain;
}

}  // namespace glossmill
