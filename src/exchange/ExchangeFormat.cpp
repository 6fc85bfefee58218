#include "exchange/ExchangeFormat.h"

#include "exchange/ExportText.h"

namespace glossmill {

namespace {

constexpr std::string_view kTextTypes[] = {"txt", "rtf", "TXT", "RTF"};

constexpr ExchangeFormat kFormats[] = {
    {"Text", kTextTypes, kExportTextStart, appendExportBlock, importTable},
};

}  // namespace

std::span<const ExchangeFormat> exchangeFormats() {
  return kFormats;
}

}  // namespace glossmill
