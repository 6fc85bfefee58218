#pragma once

#include <functional>
#include <string_view>

#include "text/Result.h"

namespace glossmill {

/// Gives what is to be written piece by piece, each valid until the next is asked for; the empty piece is the end.
using BytePieces = std::function<Result<std::string_view>()>;

/// All of it at once; the bytes live as long as the pieces are asked for.
BytePieces onePiece(std::string_view bytes);

}  // namespace glossmill
