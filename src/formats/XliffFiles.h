#pragma once

#include <string>
#include <vector>

#include "exchange/ExchangeUnit.h"

namespace glossmill {

/// The units of one strings file.
struct XliffFile {
  std::string path;
  std::vector<const ExchangeUnit*> units;
};

/// The units by their files, both in the order of the document, which outlives them.
std::vector<XliffFile> filesOf(const std::vector<const ExchangeUnit*>& units);

/// Code of the language that is translated from; English where nobody knows it, since the format wants one.
std::string sourceCodeOf(const ExchangeDocument& document);
/// Code of the language of the translations; empty where there is none.
std::string targetCodeOf(const ExchangeDocument& document);

}  // namespace glossmill
