#pragma once

#include <set>
#include <string>
#include <utility>

#include "exchange/ExchangeFormat.h"
#include "fuzz/FuzzSupport.h"
#include "text/TextDecoder.h"
#include "text/Utf8.h"

namespace glossmill {

using KeyedTexts = std::set<std::pair<std::string, std::string>>;

/// The translations of a document with their keys.
inline KeyedTexts keyedTexts(const ExchangeDocument& document) {
  KeyedTexts texts;
  for (const ExchangeUnit& unit : document.units) {
    require(isValidUtf8(unit.key) && isValidUtf8(unit.source) && isValidUtf8(unit.comment), "units are valid UTF-8");
    for (const UnitText& text : unit.texts) {
      require(text.language < document.languages.size(), "a translation has one of the languages");
      require(isValidUtf8(text.text) && !text.text.empty(), "translations are valid UTF-8 and hold something");
      texts.emplace(unit.key, text.text);
    }
  }
  return texts;
}

/// Reads the bytes. What was read is what comes back after it was written, but for what the writer says it left out.
inline void checkReader(std::string_view bytes, Result<ExchangeDocument> (*read)(const std::string& text),
                        WrittenExchange (*write)(const ExchangeDocument& document, const ExchangeWish& wish)) {
  const Result<std::string> text = decodeText(bytes);
  if (!text) return;
  Result<ExchangeDocument> document = read(text.value());
  if (!document) {
    require(!document.error().sentence.empty(), "an error has a sentence");
    return;
  }
  const KeyedTexts texts = keyedTexts(document.value());
  if (document.value().languages.size() != 1) return;
  const WrittenExchange written = write(document.value(), {});
  if (!written.leftOut.empty()) return;
  const Result<ExchangeDocument> again = read(written.files.front().text);
  require(again.ok(), "what was written can be read");
  require(again.value().rejected.empty(), "all that was written is taken");
  require(keyedTexts(again.value()) == texts, "each translation comes back as it was");
}

}  // namespace glossmill
