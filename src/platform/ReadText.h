#pragma once

#include <string>
#include <string_view>

#include "platform/Files.h"

namespace glossmill {

/// What is left of an open file as UTF-8 text, its encoding detected.
Result<std::string> readText(ByteReader& reader);

/// The same without a copy where the text is at hand: it lies in `room` or where the reader has it, and is valid as
/// long as both. To be called before anything was read.
Result<std::string_view> readText(ByteReader& reader, std::string& room);

/// The whole file as UTF-8 text, its encoding detected. The error names the reason, not the file.
Result<std::string> readText(FileReading& files, const FileUrl& file);

}  // namespace glossmill
