#include "exchange/ExchangeFormat.h"

#include <algorithm>

#include "exchange/ExportText.h"
#include "exchange/ImportText.h"
#include "exchange/PoReader.h"
#include "exchange/PoWriter.h"
#include "exchange/SheetReader.h"
#include "exchange/SheetWriter.h"
#include "exchange/TableText.h"
#include "text/FoldCase.h"

namespace glossmill {

namespace {

constexpr std::string_view kTextTypes[] = {"txt", "rtf", "TXT", "RTF"};
constexpr std::string_view kPoTypes[] = {"po"};
constexpr std::string_view kCsvTypes[] = {"csv"};
constexpr std::string_view kTsvTypes[] = {"tsv", "tab"};

template <auto append>
WrittenExchange textOf(const ExchangeDocument& document, const ExchangeWish&) {
  std::string text = kExportTextStart;
  for (const ExchangeUnit& unit : document.units) append(text, unit);
  return {{{"", std::move(text)}}, {}};
}

constexpr ExchangeFormat kFormats[] = {
    {"text", "Text", kTextTypes, false, false, textOf<appendExportBlock>, readExportText},
    {"po", "PO (gettext)", kPoTypes, false, false, poText, readPo},
    {"csv", "CSV", kCsvTypes, true, false, csvText, readCsv},
    {"tsv", "TSV", kTsvTypes, true, false, tsvText, readTsv},
};

constexpr ExchangeFormat kTableFormat = {"text",       "Text", kTextTypes, false, false, textOf<appendTableBlock>,
                                         readTableText};

}  // namespace

std::span<const ExchangeFormat> exchangeFormats() {
  return kFormats;
}

const ExchangeFormat& tableFormat() {
  return kTableFormat;
}

const ExchangeFormat* formatOfFile(std::span<const ExchangeFormat> formats, const FileUrl& file) {
  const std::string type = foldCase(file.pathExtension());
  for (const ExchangeFormat& format : formats) {
    if (std::ranges::find(format.fileTypes, type) != format.fileTypes.end()) return &format;
  }
  return nullptr;
}

const ExchangeFormat* formatNamed(std::span<const ExchangeFormat> formats, std::string_view name) {
  const auto found = std::ranges::find(formats, name, &ExchangeFormat::name);
  return found == formats.end() ? nullptr : &*found;
}

}  // namespace glossmill
