#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "text/ByteSearch.h"

namespace glossmill {

/// An entry that has a line of its own, as nearly all have: "key" = "value"; and a line feed.
struct PlainEntry {
  std::string_view key;
  std::string_view value;
  std::size_t end = 0;         ///< behind the line feed
  bool keyIsExpected = false;  ///< it was the one that was asked for
};

/// True when the quote at `quote` ends the text between quotes in front of it also for the comment remover.
inline bool isPlainClosingQuote(std::string_view text, std::size_t quote) {
  return quote < text.size() && text[quote] == '"' && text[quote - 1] != '\\';
}

/// Where the text between quotes that begins at `start` can end at the earliest: the next quote or line feed.
inline std::size_t plainLiteralEnd(std::string_view text, std::size_t start) {
  return findEither(text, '"', '\n', start);
}

/// True when the text between quotes that begins at `start` is `expected`, which holds no quote.
inline bool isLiteral(std::string_view text, std::size_t start, std::string_view expected) {
  const std::size_t end = start + expected.size();
  return end < text.size() && text[end] == '"' && text.substr(start, expected.size()) == expected;
}

inline std::size_t skipBlanks(std::string_view text, std::size_t at) {
  while (at < text.size() && (text[at] == ' ' || text[at] == '\t')) ++at;
  return at;
}

/// Where a value begins whose "=" and quote stand at `at`, with blanks around the "="; the length of `text` if not.
inline std::size_t plainValueStart(std::string_view text, std::size_t at) {
  const std::size_t equals = skipBlanks(text, at);
  if (equals == text.size() || text[equals] != '=') return text.size();
  const std::size_t quote = skipBlanks(text, equals + 1);
  return quote == text.size() || text[quote] != '"' ? text.size() : quote + 1;
}

/// The entry that begins with the quote at `at`, in front of which nothing stands on its line. Nothing when the text
/// does not hold the whole line, or when the line says anything that needs a closer look. It is quicker when the key is
/// `expectedKey`, which holds neither quotes nor line feeds.
inline std::optional<PlainEntry> plainEntryAt(std::string_view text, std::size_t at,
                                              std::optional<std::string_view> expectedKey) {
  constexpr std::string_view kEnd = "\";\n";
  const std::size_t key = at + 1;
  const bool isExpected = expectedKey && isLiteral(text, key, *expectedKey);
  const std::size_t keyEnd = isExpected ? key + expectedKey->size() : plainLiteralEnd(text, key);
  if (!isPlainClosingQuote(text, keyEnd)) return std::nullopt;
  const std::size_t value = plainValueStart(text, keyEnd + 1);
  const std::size_t valueEnd = plainLiteralEnd(text, value);
  if (!isPlainClosingQuote(text, valueEnd) || !text.substr(valueEnd).starts_with(kEnd)) return std::nullopt;
  return PlainEntry{text.substr(key, keyEnd - key), text.substr(value, valueEnd - value), valueEnd + kEnd.size(),
                    isExpected};
}

/// The end of the block comment that begins at `at`; `at` when none does or its end is not in the text. As everywhere,
/// a star takes the next character with it.
inline std::size_t endOfPlainComment(std::string_view text, std::size_t at) {
  if (!text.substr(at).starts_with("/*")) return at;
  for (std::size_t star = findByte(text, '*', at + 2); star + 1 < text.size(); star = findByte(text, '*', star + 2)) {
    if (text[star + 1] == '/') return star + 2;
  }
  return at;
}

}  // namespace glossmill
