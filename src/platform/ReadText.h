#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace glossmill {

/// What is left of an open file as UTF-8 text, its encoding detected.
Result<std::string> readText(ByteReader& reader);

/// The whole file as UTF-8 text, its encoding detected. The error names the reason, not the file.
Result<std::string> readText(FileReading& files, const FileUrl& file);

/// The same in pieces of about 32 KB through one window, so that large files stay in the processor's cache. When it
/// ends in an error, what `sink` got before is to be thrown away.
Outcome readTextPieces(FileReading& files, const FileUrl& file, const std::function<void(std::string_view)>& sink);

}  // namespace glossmill
