#pragma once

#include <string_view>

#include "platform/FileUrl.h"
#include "text/Result.h"

namespace glossmill {

/// Puts `bytes` in the place of the file, whole or not at all: written to a temporary file beside it, flushed to the
/// disk, renamed. Links are followed to the file that is really meant, which need not exist yet. Permissions and, where
/// the system allows it, the owner of a former file are kept.
Outcome writeAtomically(const FileUrl& file, std::string_view bytes);

}  // namespace glossmill
