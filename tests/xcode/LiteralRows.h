#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "text/Result.h"

namespace glossmill {

/// A literal as it stands in a source, and the text it stands for, or what is wrong with it.
struct LiteralRow {
  std::string literal;
  std::string expected;
};

using LiteralReader = Result<std::string> (*)(std::string_view literal);

inline void expectValues(LiteralReader read, const std::vector<LiteralRow>& rows) {
  for (const LiteralRow& row : rows) {
    const Result<std::string> value = read(row.literal);
    ASSERT_TRUE(value.ok()) << row.literal << ": " << value.error().sentence;
    EXPECT_EQ(value.value(), row.expected) << row.literal;
  }
}

inline void expectMistakes(LiteralReader read, const std::vector<LiteralRow>& rows) {
  for (const LiteralRow& row : rows) {
    const Result<std::string> value = read(row.literal);
    ASSERT_FALSE(value.ok()) << row.literal << ": " << value.value();
    EXPECT_EQ(value.error().sentence, row.expected) << row.literal;
  }
}

}  // namespace glossmill
