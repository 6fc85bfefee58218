#include "text/TextDecoder.h"

#include <algorithm>
#include <bit>

#include "text/UnitBlock.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

constexpr std::size_t kSampleBytes = 4096;
constexpr char32_t kFirstStrange = 0x80;  ///< the first unit that is not ASCII

const Error kMalformedUtf8{"The file is not valid UTF-8 and has no byte-order mark of another encoding.",
                           ErrorKind::Undecodable};
const Error kMalformedUtf16{"The file is malformed UTF-16.", ErrorKind::Undecodable};
const Error kMalformedUtf32{"The file is malformed UTF-32.", ErrorKind::Undecodable};

bool isHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

unsigned byteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

/// UTF-16 of any language has ASCII line ends, blanks and quotes, so one of the two bytes of a unit is zero now and
/// then, always the same one; UTF-8 text holds no zero bytes.
DetectedEncoding detectByZeroBytes(std::string_view bytes) {
  if (bytes.find('\0') == std::string_view::npos) return {TextEncoding::Utf8, 0};
  const std::size_t units = bytes.size() / 2;
  std::size_t zeros[2] = {0, 0};
  for (std::size_t at = 0; at < units * 2; ++at) zeros[at % 2] += bytes[at] == 0 ? 1 : 0;
  const auto dominates = [&](std::size_t side) {
    return zeros[side] * 16 >= units && zeros[side] > 0 && zeros[1 - side] * 4 <= zeros[side];
  };
  if (dominates(1)) return {TextEncoding::Utf16LittleEndian, 0};
  if (dominates(0)) return {TextEncoding::Utf16BigEndian, 0};
  return {TextEncoding::Utf8, 0};
}

/// Copies leading ASCII units to `out`, which has room for them all and a block more; returns how many.
template <std::size_t LowByte>
std::size_t narrowAscii(const char* units, std::size_t count, char* out) {
  std::size_t at = 0;
  while (at + UnitBlock::kSize <= count) {
    const UnitBlock block(units + 2 * at, LowByte);
    block.narrow(out + at);
    if (block.notAscii() != 0) return at + static_cast<std::size_t>(std::countr_zero(block.notAscii()));
    at += UnitBlock::kSize;
  }
  return at;
}

/// Takes one unit; `highSurrogate` is the first half of a pair that waits for its second, or 0. False when it is
/// malformed.
inline bool takeUtf16Unit(char32_t unit, char32_t& highSurrogate, char*& out) {
  if (highSurrogate == 0 && unit < 0xD800) {
    out = putUtf8(out, unit);
    return true;
  }
  if (highSurrogate != 0) {
    if (!isLowSurrogate(unit)) return false;
    out = putUtf8(out, 0x10000 + ((highSurrogate - 0xD800) << 10) + (unit - 0xDC00));
    highSurrogate = 0;
    return true;
  }
  if (isLowSurrogate(unit)) return false;
  if (isHighSurrogate(unit)) {
    highSurrogate = unit;
  } else {
    out = putUtf8(out, unit);
  }
  return true;
}

}  // namespace

DetectedEncoding detectEncoding(std::string_view firstBytes) {
  using namespace std::string_view_literals;
  if (firstBytes.starts_with("\xEF\xBB\xBF"sv)) return {TextEncoding::Utf8, 3};
  if (firstBytes.starts_with("\xFF\xFE\0\0"sv)) return {TextEncoding::Utf32LittleEndian, 4};
  if (firstBytes.starts_with("\0\0\xFE\xFF"sv)) return {TextEncoding::Utf32BigEndian, 4};
  if (firstBytes.starts_with("\xFF\xFE"sv)) return {TextEncoding::Utf16LittleEndian, 2};
  if (firstBytes.starts_with("\xFE\xFF"sv)) return {TextEncoding::Utf16BigEndian, 2};
  return detectByZeroBytes(firstBytes.substr(0, kSampleBytes));
}

Outcome TextDecoder::feed(std::string_view bytes, const Sink& sink) {
  if (!m_started && !bytes.empty()) {
    m_started = true;
    m_detected = detectEncoding(bytes);
    bytes.remove_prefix(m_detected.markLength);
  }
  switch (m_detected.encoding) {
    case TextEncoding::Utf8:
      return feedUtf8(bytes, sink);
    case TextEncoding::Utf16LittleEndian:
    case TextEncoding::Utf16BigEndian:
      return feedWhole(bytes, 2, [&](std::string_view whole) { return feedUtf16(whole, sink); });
    case TextEncoding::Utf32LittleEndian:
    case TextEncoding::Utf32BigEndian:
      return feedWhole(bytes, 4, [&](std::string_view whole) { return feedUtf32(whole, sink); });
  }
  return Done{};
}

Outcome TextDecoder::finish() {
  if (m_rest.empty() && m_highSurrogate == 0) return Done{};
  switch (m_detected.encoding) {
    case TextEncoding::Utf8:
      return kMalformedUtf8;
    case TextEncoding::Utf16LittleEndian:
    case TextEncoding::Utf16BigEndian:
      return kMalformedUtf16;
    default:
      return kMalformedUtf32;
  }
}

/// Valid text is passed on where it lies; only a sequence that a piece cut off is put together first.
Outcome TextDecoder::feedUtf8(std::string_view bytes, const Sink& sink) {
  while (!m_rest.empty() && !bytes.empty()) {
    m_rest.push_back(bytes.front());
    bytes.remove_prefix(1);
    if (isCutUtf8Sequence(m_rest)) continue;
    if (!isValidUtf8(m_rest)) return kMalformedUtf8;
    sink(m_rest);
    m_rest.clear();
  }
  const std::size_t valid = validUtf8Prefix(bytes);
  if (valid != 0) sink(bytes.substr(0, valid));
  if (valid == bytes.size()) return Done{};
  if (!isCutUtf8Sequence(bytes.substr(valid))) return kMalformedUtf8;
  m_rest = bytes.substr(valid);
  return Done{};
}

/// Passes `bytes` on to `feed` in whole units and keeps what is left of the last one.
template <typename Feed>
Outcome TextDecoder::feedWhole(std::string_view bytes, std::size_t unit, const Feed& feed) {
  if (!m_rest.empty()) {
    const std::size_t missing = std::min(unit - m_rest.size(), bytes.size());
    m_rest.append(bytes.substr(0, missing));
    bytes.remove_prefix(missing);
    if (m_rest.size() < unit) return Done{};
    const std::string whole = std::move(m_rest);
    m_rest.clear();
    const Outcome outcome = feed(whole);
    if (!outcome) return outcome;
  }
  const std::size_t length = bytes.size() / unit * unit;
  m_rest = bytes.substr(length);
  return feed(bytes.substr(0, length));
}

/// Runs of ASCII go through the quick loop; where it stops, units are taken one by one until ASCII comes again.
Outcome TextDecoder::feedUtf16(std::string_view bytes, const Sink& sink) {
  const std::size_t lowByte = m_detected.encoding == TextEncoding::Utf16LittleEndian ? 0 : 1;
  const auto narrow = lowByte == 0 ? narrowAscii<0> : narrowAscii<1>;
  const std::size_t count = bytes.size() / 2;
  // No unit takes more than three bytes; four for a pair cut by the piece before.
  m_decoded.resize(count * 3 + 4 + UnitBlock::kSize);
  char* out = m_decoded.data();
  char32_t highSurrogate = m_highSurrogate;
  for (std::size_t at = 0; at < count;) {
    if (highSurrogate == 0) {
      const std::size_t ascii = narrow(bytes.data() + 2 * at, count - at, out);
      at += ascii;
      out += ascii;
    }
    char32_t unit = kFirstStrange;
    for (; at < count && unit >= kFirstStrange; ++at) {
      unit = byteAt(bytes, 2 * at + lowByte) | (byteAt(bytes, 2 * at + 1 - lowByte) << 8);
      if (!takeUtf16Unit(unit, highSurrogate, out)) return kMalformedUtf16;
    }
  }
  m_highSurrogate = highSurrogate;
  const auto length = static_cast<std::size_t>(out - m_decoded.data());
  if (length != 0) sink({m_decoded.data(), length});
  return Done{};
}

Outcome TextDecoder::feedUtf32(std::string_view bytes, const Sink& sink) {
  const bool little = m_detected.encoding == TextEncoding::Utf32LittleEndian;
  m_decoded.clear();
  for (std::size_t at = 0; at < bytes.size(); at += 4) {
    char32_t codePoint = 0;
    for (std::size_t i = 0; i < 4; ++i) codePoint = (codePoint << 8) | byteAt(bytes, at + (little ? 3 - i : i));
    if (codePoint > 0x10FFFF || isHighSurrogate(codePoint) || isLowSurrogate(codePoint)) return kMalformedUtf32;
    appendUtf8(m_decoded, codePoint);
  }
  if (!m_decoded.empty()) sink(m_decoded);
  return Done{};
}

Result<std::string> decodeText(std::string_view bytes) {
  // What a piece gives stays in the cache until it is copied.
  constexpr std::size_t kPieceBytes = 16 * 1024;
  std::string text;
  text.reserve(bytes.size() / 2 + bytes.size() / 8);
  TextDecoder decoder;
  for (std::size_t at = 0; at < bytes.size(); at += kPieceBytes) {
    const Outcome fed =
        decoder.feed(bytes.substr(at, kPieceBytes), [&text](std::string_view piece) { text.append(piece); });
    if (!fed) return fed.error();
  }
  const Outcome finished = decoder.finish();
  if (!finished) return finished.error();
  return text;
}

}  // namespace glossmill
