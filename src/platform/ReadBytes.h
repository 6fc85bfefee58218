#pragma once

#include <string>

#include "platform/Files.h"

namespace glossmill {

/// The whole file as it is.
Result<std::string> readBytes(FileReading& files, const FileUrl& file);

}  // namespace glossmill
