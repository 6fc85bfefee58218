#pragma once

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>

#include "exchange/ExchangeFormat.h"
#include "exchange/TablePath.h"

namespace glossmill {

/// Translations by table and key.
using TextsByKey = std::map<std::pair<std::string, std::string>, std::string>;

inline TextsByKey textsOf(const ExchangeDocument& document) {
  TextsByKey texts;
  for (const ExchangeUnit& unit : document.units) {
    const std::string* text = unit.textIn(0);
    const std::string table = unit.table.empty() ? tableOfPath(unit.file) : unit.table;
    if (text && !text->empty()) texts[{table, unit.key}] = *text;
  }
  return texts;
}

/// What of a document a format is to bring back: all but what it said it left out.
inline TextsByKey carriedTexts(const ExchangeDocument& document, const WrittenExchange& written) {
  TextsByKey texts = textsOf(document);
  for (const LeftOutUnit& unit : written.leftOut) texts.erase({unit.table, unit.key});
  return texts;
}

/// Writes a document and reads it again: each translation comes back to its place as it was.
inline void expectReturn(const ExchangeFormat& format, const ExchangeDocument& document) {
  const WrittenExchange written = format.write(document, {});
  const Result<ExchangeDocument> read = format.read(written.files.front().text);
  ASSERT_TRUE(read) << read.error().sentence << "\n" << written.files.front().text;
  EXPECT_TRUE(read.value().rejected.empty()) << read.value().rejected.front().sentence;
  ASSERT_EQ(textsOf(read.value()), carriedTexts(document, written)) << written.files.front().text;
}

}  // namespace glossmill
