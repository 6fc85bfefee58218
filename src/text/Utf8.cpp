#include "text/Utf8.h"

#include <bit>

#include "text/ByteBlock.h"

namespace glossmill {

namespace {

unsigned valueAt(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

/// What may follow a lead byte: how long the sequence is and in which range its second byte lies; length 0: no lead
/// byte.
struct SequenceRule {
  std::size_t length;
  unsigned secondLow;
  unsigned secondHigh;
};

SequenceRule ruleOf(unsigned lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return {2, 0x80, 0xBF};
  if (lead == 0xE0) return {3, 0xA0, 0xBF};
  if (lead == 0xED) return {3, 0x80, 0x9F};
  if (lead >= 0xE1 && lead <= 0xEF) return {3, 0x80, 0xBF};
  if (lead == 0xF0) return {4, 0x90, 0xBF};
  if (lead >= 0xF1 && lead <= 0xF3) return {4, 0x80, 0xBF};
  if (lead == 0xF4) return {4, 0x80, 0x8F};
  return {0, 0, 0};
}

/// How many bytes at the start of `text` fit the rule, at most its length.
std::size_t fittingBytes(std::string_view text, const SequenceRule& rule) {
  std::size_t count = 1;
  while (count < rule.length && count < text.size()) {
    const unsigned byte = valueAt(text, count);
    const unsigned low = count == 1 ? rule.secondLow : 0x80;
    const unsigned high = count == 1 ? rule.secondHigh : 0xBF;
    if (byte < low || byte > high) return count;
    ++count;
  }
  return count;
}

/// The place of the first byte at or after `at` that is not ASCII.
std::size_t skipAscii(std::string_view text, std::size_t at) {
  for (; at + ByteBlock::kSize <= text.size(); at += ByteBlock::kSize) {
    const ByteBlock::Mask others = ByteBlock(text.data() + at).notAscii();
    if (others != 0) return at + static_cast<std::size_t>(std::countr_zero(others));
  }
  while (at < text.size() && valueAt(text, at) < 0x80) ++at;
  return at;
}

bool isContinuation(unsigned byte) {
  return (byte & 0xC0) == 0x80;
}

/// The length of the valid sequence that stands at `at`, 0 when there is none.
std::size_t sequenceLength(std::string_view text, std::size_t at) {
  const SequenceRule rule = ruleOf(valueAt(text, at));
  return rule.length != 0 && fittingBytes(text.substr(at), rule) == rule.length ? rule.length : 0;
}

/// Skips the sequences that most text is made of, two bytes or three with no limit on the second, as long as four bytes
/// are left.
std::size_t skipCommonSequences(std::string_view text, std::size_t at) {
  while (at + 4 <= text.size()) {
    const unsigned lead = valueAt(text, at);
    if (lead >= 0xC2 && lead <= 0xDF && isContinuation(valueAt(text, at + 1))) {
      at += 2;
    } else if (lead >= 0xE1 && lead <= 0xEC && isContinuation(valueAt(text, at + 1)) &&
               isContinuation(valueAt(text, at + 2))) {
      at += 3;
    } else {
      break;
    }
  }
  return at;
}

}  // namespace

std::size_t validUtf8Prefix(std::string_view bytes) {
  std::size_t at = 0;
  while (true) {
    // Text of other scripts comes in runs, so the sequences are taken one after the other before ASCII is looked for.
    at = skipCommonSequences(bytes, at);
    while (at < bytes.size() && valueAt(bytes, at) >= 0x80) {
      const std::size_t length = sequenceLength(bytes, at);
      if (length == 0) return at;
      at += length;
    }
    at = skipAscii(bytes, at);
    if (at == bytes.size()) return at;
  }
}

bool isValidUtf8(std::string_view bytes) {
  return validUtf8Prefix(bytes) == bytes.size();
}

bool isCutUtf8Sequence(std::string_view bytes) {
  if (bytes.empty()) return false;
  const SequenceRule rule = ruleOf(valueAt(bytes, 0));
  return bytes.size() < rule.length && fittingBytes(bytes, rule) == bytes.size();
}

void appendUtf8(std::string& text, char32_t codePoint) {
  char bytes[4];
  text.append(bytes, putUtf8(bytes, codePoint));
}

char32_t takeCodePoint(std::string_view& text) {
  const unsigned lead = valueAt(text, 0);
  const std::size_t length = lead < 0x80 ? 1 : ruleOf(lead).length;
  char32_t codePoint = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t at = 1; at < length; ++at) codePoint = (codePoint << 6) | (valueAt(text, at) & 0x3F);
  text.remove_prefix(length);
  return codePoint;
}

}  // namespace glossmill
