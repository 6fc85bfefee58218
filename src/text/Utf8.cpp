#include "text/Utf8.h"

#include <bit>
#include <optional>

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

bool isContinuation(unsigned byte) {
  return (byte & 0xC0) == 0x80;
}

/// The length of the valid sequence that stands at `at`, 0 when there is none.
std::size_t sequenceLength(std::string_view text, std::size_t at) {
  const SequenceRule rule = ruleOf(valueAt(text, at));
  return rule.length != 0 && fittingBytes(text.substr(at), rule) == rule.length ? rule.length : 0;
}

/// The place of the first invalid sequence in front of `end`, or where the sequence that reaches `end` is over.
std::size_t checkOneByOne(std::string_view text, std::size_t at, std::size_t end) {
  while (at < end) {
    const std::size_t length = valueAt(text, at) < 0x80 ? 1 : sequenceLength(text, at);
    if (length == 0) return at;
    at += length;
  }
  return at;
}

/// Checks a block whose first bytes, where `carried` has bits, belong to a sequence of the block before. Returns the
/// same for the next block, or nothing when the block holds what has to be looked at one by one: a mistake, four bytes
/// to a character, or at its end a lead whose second byte has limits of its own.
std::optional<ByteBlock::Mask> checkBlock(const ByteBlock& block, ByteBlock::Mask carried) {
  constexpr ByteBlock::Mask kWhole = 0xFFFF;
  const ByteBlock::Mask leads = block.atLeast(0xC0);
  if (block.atLeast(0xF0) != 0 || block.atLeast(0xC2) != leads) return std::nullopt;
  const ByteBlock::Mask continuations = carried | leads << 1 | block.atLeast(0xE0) << 2;
  if ((continuations & kWhole) != (block.notAscii() & ~leads)) return std::nullopt;
  const ByteBlock::Mask wantHigh = block.equal('\xE0') << 1;
  const ByteBlock::Mask wantLow = block.equal('\xED') << 1;
  if (wantHigh != 0 || wantLow != 0) {
    const ByteBlock::Mask high = block.atLeast(0xA0);
    if ((wantHigh & ~high) != 0 || (wantLow & (high | ~kWhole)) != 0) return std::nullopt;
  }
  return continuations >> ByteBlock::kSize;
}

/// Where the sequence starts that reaches `at`, or `at`.
std::size_t startOfSequence(std::string_view text, std::size_t at, ByteBlock::Mask carried) {
  if (carried == 0) return at;
  do --at;
  while (isContinuation(valueAt(text, at)));
  return at;
}

}  // namespace

std::size_t validUtf8Prefix(std::string_view bytes) {
  ByteBlock::Mask carried = 0;
  std::size_t at = 0;
  while (at + ByteBlock::kSize <= bytes.size()) {
    const ByteBlock block(bytes.data() + at);
    const std::size_t end = at + ByteBlock::kSize;
    const auto next = block.notAscii() == 0 && carried == 0 ? carried : checkBlock(block, carried);
    at = next ? end : checkOneByOne(bytes, startOfSequence(bytes, at, carried), end);
    if (at < end) return at;
    carried = next.value_or(0);
  }
  return checkOneByOne(bytes, startOfSequence(bytes, at, carried), bytes.size());
}

std::size_t asciiPrefix(std::string_view bytes) {
  std::size_t at = 0;
  for (; at + ByteBlock::kSize <= bytes.size(); at += ByteBlock::kSize) {
    const ByteBlock::Mask strange = ByteBlock(bytes.data() + at).notAscii();
    if (strange != 0) return at + static_cast<std::size_t>(std::countr_zero(strange));
  }
  while (at < bytes.size() && valueAt(bytes, at) < 0x80) ++at;
  return at;
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
