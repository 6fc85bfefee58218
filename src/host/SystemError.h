#pragma once

#include <string_view>

#include "text/Result.h"

namespace glossmill {

/// The error of a failed system call as a sentence for a person. `thing` is what was asked for: "file" or "directory".
Error systemError(int code, std::string_view thing = "file");

/// For a pipe, a device or a socket where a file is wanted.
Error notARegularFile();

}  // namespace glossmill
