#pragma once

#include <string>

#include "platform/Files.h"

namespace glossmill {

/// What a file for translators holds, as UTF-8 text, its encoding detected. Of a bundle of Xcode's (`.xcloc`) it is the
/// text of the translations in it.
Result<std::string> readExchangeText(FileReading& files, const FileUrl& file);

}  // namespace glossmill
