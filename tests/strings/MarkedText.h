#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string_view>
#include <vector>

#include "strings/CommentRemover.h"

namespace glossmill {

/// The clean text with the marks that it is to have.
inline CleanText marked(std::string_view text) {
  CleanText clean;
  clean.text = text;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '"') clean.quotes.push_back(at);
    if (text[at] == '\n') clean.lineEnds.push_back({at, clean.quotes.size()});
  }
  return clean;
}

inline void expectSame(const CleanText& clean, const CleanText& expected) {
  EXPECT_EQ(clean.text, expected.text);
  EXPECT_EQ(clean.quotes, expected.quotes);
  EXPECT_TRUE(clean.lineEnds == expected.lineEnds);
}

inline CleanText cleanPieces(const std::vector<std::string_view>& pieces) {
  CommentRemover remover;
  CleanText clean;
  for (const std::string_view piece : pieces) remover.feed(piece, clean);
  return clean;
}

inline void expectClean(const std::vector<std::string_view>& pieces, std::string_view expected) {
  expectSame(cleanPieces(pieces), marked(expected));
}

}  // namespace glossmill
