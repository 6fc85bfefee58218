#include "xcode/PlaceCounter.h"

#include "text/ByteBlock.h"
#include "text/Utf16.h"
#include "xcode/SourceText.h"

namespace glossmill {

namespace {

/// Says whether a line ends with the byte at `at`, which for CRLF is its second one.
bool endsLine(std::string_view text, std::size_t at) {
  if (text[at] == '\n') return true;
  return text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n');
}

std::size_t countLineEnds(std::string_view text, std::size_t from, std::size_t to) {
  std::size_t count = 0;
  for (; from + ByteBlock::kSize <= to && from + ByteBlock::kSize < text.size(); from += ByteBlock::kSize) {
    const ByteBlock block(text.data() + from);
    const ByteBlock::Mask returns = block.equal('\r') & ~ByteBlock(text.data() + from + 1).equal('\n');
    // Most blocks hold one at most.
    for (ByteBlock::Mask ends = block.equal('\n') | returns; ends != 0; ends &= ends - 1) ++count;
  }
  for (; from < to; ++from) count += endsLine(text, from) ? 1 : 0;
  return count;
}

}  // namespace

TextPlace PlaceCounter::at(std::size_t place) {
  const std::size_t lines = countLineEnds(m_text, m_at, place);
  if (lines > 0) {
    m_place.line += lines;
    m_place.column = 1;
    m_at = place;
    while (!endsLine(m_text, m_at - 1)) --m_at;
  }
  m_place.column += utf16Length(m_text.substr(m_at, place - m_at));
  m_at = place;
  return m_place;
}

}  // namespace glossmill
