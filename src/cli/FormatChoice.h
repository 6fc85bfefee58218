#pragma once

#include <string>

#include "exchange/ExchangeFormat.h"

namespace CLI {
class App;
}

namespace glossmill {

/// Adds --format, for a command that exchanges files with translators.
void addFormat(CLI::App& command, std::string& name);

/// The format with this name, or by the file's extension without a name; the program's own text where there is none.
const ExchangeFormat& chosenFormat(std::string_view name, const FileUrl& file);

inline bool isOwnText(const ExchangeFormat& format) {
  return &format == &exchangeFormats().front();
}

}  // namespace glossmill
