#pragma once

#include "platform/BytePieces.h"
#include "platform/Files.h"
#include "text/ContentHash.h"
#include "text/Result.h"

namespace glossmill {

/// The bytes of a file as they are read; opened when the first piece is asked for. `files` outlives the pieces.
BytePieces contentOf(Files& files, const FileUrl& file);

/// The bytes of an open reader.
BytePieces contentOf(std::shared_ptr<ByteReader> reader);

/// The same pieces, and an error at their end when they were not what has this hash.
BytePieces verified(BytePieces pieces, const ContentHash& hash);

Result<ContentHash> hashOfContent(const BytePieces& pieces);

/// Compares two files byte for byte.
Result<bool> haveSameContent(Files& files, const FileUrl& one, const FileUrl& other);

}  // namespace glossmill
