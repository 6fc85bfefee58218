#include "platform/Files.h"

namespace glossmill {

Outcome Files::writeTextPieces(const FileUrl& file, const TextPieces& next) {
  std::string text;
  for (std::string_view piece = next(); !piece.empty(); piece = next()) text += piece;
  return writeText(file, text);
}

}  // namespace glossmill
