#pragma once

#include "platform/BytePieces.h"
#include "platform/FileUrl.h"
#include "text/Result.h"

namespace glossmill {

/// Puts what `next` gives in the place of the file, whole or not at all: written to a temporary file beside it, flushed
/// to the disk, renamed. Links are followed to the file that is really meant, which need not exist yet. Permissions
/// and, where the system allows it, the owner of a former file are kept. An error of `next` is passed on.
Outcome writeAtomically(const FileUrl& file, const BytePieces& next);

}  // namespace glossmill
