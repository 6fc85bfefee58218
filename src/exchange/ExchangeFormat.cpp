#include "exchange/ExchangeFormat.h"

#include "exchange/ExportText.h"
#include "exchange/TableText.h"

namespace glossmill {

namespace {

constexpr std::string_view kTextTypes[] = {"txt", "rtf", "TXT", "RTF"};

constexpr ExchangeFormat kFormats[] = {
    {"Text", kTextTypes, kExportTextStart, appendExportBlock, importTable},
};

constexpr ExchangeFormat kTableFormat = {"Text with tables", kTextTypes, kExportTextStart, appendTableBlock,
                                         tableTextImport};

}  // namespace

std::span<const ExchangeFormat> exchangeFormats() {
  return kFormats;
}

const ExchangeFormat& tableFormat() {
  return kTableFormat;
}

}  // namespace glossmill
