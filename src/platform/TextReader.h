#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "platform/Files.h"
#include "text/TextDecoder.h"

namespace glossmill {

/// An open file on its way to UTF-8 text, its encoding detected. It goes through windows, so that large files stay in
/// the processor's cache.
class TextReader {
 public:
  static constexpr std::size_t kWindow = 32 * 1024;
  static constexpr std::size_t kLongestCharacter = 4;  ///< bytes

  /// A window's bytes, and the text that was decoded of them where that is not the same.
  struct Room {
    std::array<char, kWindow> window;
    std::string decoded;
  };

  /// `file` outlives it.
  explicit TextReader(ByteReader& file) : m_file(file) {}

  /// Fills the window and passes its text on; false when the file ends with it. The text lies in the room, but for a
  /// character in front of it that the last window cut off. The error names the reason, not the file; what was passed
  /// on before is then to be thrown away.
  Result<bool> next(Room& room, const TextDecoder::Sink& sink);

 private:
  Result<std::size_t> fill(std::span<char> window);

  ByteReader& m_file;
  TextDecoder m_decoder;
};

}  // namespace glossmill
