#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "text/Result.h"

namespace glossmill {

enum class TextEncoding { Utf8, Utf16LittleEndian, Utf16BigEndian, Utf32LittleEndian, Utf32BigEndian };

/// What the first bytes of a file say about its encoding.
struct DetectedEncoding {
  TextEncoding encoding = TextEncoding::Utf8;
  std::size_t markLength = 0;  ///< bytes of the byte-order mark, 0 without one
};

/// Looks at byte-order marks, then, in the first 4096 bytes, for the zero bytes of UTF-16 without a mark; UTF-8
/// otherwise.
DetectedEncoding detectEncoding(std::string_view firstBytes);

/// Turns the bytes of a file, piece by piece, into UTF-8 text. The first piece decides the encoding: give it at least
/// 4096 bytes, or the whole file when it is shorter. Malformed input is an error with a sentence; what was delivered
/// before it is then to be thrown away by the caller.
class TextDecoder {
 public:
  /// Receives decoded text; the view is valid during the call only and never cuts a UTF-8 sequence.
  using Sink = std::function<void(std::string_view)>;

  Outcome feed(std::string_view bytes, const Sink& sink);
  /// Exchanges the room for decoded text: so what the last feed() passed on may outlive the next.
  void swapRoom(std::string& room) { m_decoded.swap(room); }
  /// The end of the file: an error when a sequence is left unfinished.
  Outcome finish();

 private:
  Outcome feedUtf8(std::string_view bytes, const Sink& sink);
  Outcome feedUtf16(std::string_view bytes, const Sink& sink);
  Outcome feedUtf32(std::string_view bytes, const Sink& sink);
  template <typename Feed>
  Outcome feedWhole(std::string_view bytes, std::size_t unit, const Feed& feed);

  bool m_started = false;
  DetectedEncoding m_detected;
  std::string m_rest;            ///< bytes of a unit or sequence that the last piece cut off
  char32_t m_highSurrogate = 0;  ///< first half of a pair that the last piece cut off
  std::string m_decoded;
};

/// The whole of `bytes` as UTF-8 text without a byte-order mark. Empty input is the empty text.
Result<std::string> decodeText(std::string_view bytes);

}  // namespace glossmill
