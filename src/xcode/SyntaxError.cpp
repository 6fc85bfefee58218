#include "xcode/SyntaxError.h"

#include "text/ByteSearch.h"
#include "text/Utf16.h"

namespace glossmill {

TextPlace placeOf(std::string_view text, std::size_t at) {
  TextPlace place{1, 1};
  std::size_t lineStart = 0;
  for (std::size_t end = findEither(text, '\n', '\r', 0); end < at; end = findEither(text, '\n', '\r', lineStart)) {
    const std::size_t next = end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
    if (next > at) break;
    lineStart = next;
    ++place.line;
  }
  place.column += utf16Length(text.substr(lineStart, at - lineStart));
  return place;
}

}  // namespace glossmill
