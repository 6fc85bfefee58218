#include "platform/TextReader.h"

namespace glossmill {

/// Fills the window unless the file ends before: the decoder wants a first piece that is not short.
Result<std::size_t> TextReader::fill(std::span<char> window) {
  std::size_t filled = 0;
  while (filled < window.size()) {
    const Result<std::size_t> got = m_file.read(window.subspan(filled));
    if (!got) return got.error();
    if (got.value() == 0) break;
    filled += got.value();
  }
  return filled;
}

Result<bool> TextReader::next(Room& room, const TextDecoder::Sink& sink) {
  const Result<std::size_t> got = fill(room.window);
  if (!got) return got.error();
  m_decoder.swapRoom(room.decoded);
  const Outcome fed = m_decoder.feed({room.window.data(), got.value()}, sink);
  m_decoder.swapRoom(room.decoded);
  if (!fed) return fed.error();
  if (got.value() == room.window.size()) return true;
  const Outcome finished = m_decoder.finish();
  return finished ? Result<bool>(false) : finished.error();
}

}  // namespace glossmill
