#include "platform/BytePieces.h"

#include <utility>

namespace glossmill {

BytePieces onePiece(std::string_view bytes) {
  return [bytes]() mutable -> Result<std::string_view> { return std::exchange(bytes, {}); };
}

}  // namespace glossmill
