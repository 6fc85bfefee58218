#include "text/Split.h"

#include "text/ByteSearch.h"

namespace glossmill {

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  while (true) {
    const std::size_t end = findByte(text, separator, start);
    pieces.push_back(text.substr(start, end - start));
    if (end == text.size()) return pieces;
    start = end + 1;
  }
}

}  // namespace glossmill
