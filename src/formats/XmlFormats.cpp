#include "formats/XmlFormats.h"

#include "formats/Xcloc.h"
#include "formats/Xliff2Writer.h"
#include "formats/XliffReader.h"
#include "formats/XliffWriter.h"

namespace glossmill {

namespace {

constexpr std::string_view kXliffTypes[] = {"xliff", "xlf"};
constexpr std::string_view kXclocTypes[] = {"xcloc"};

constexpr ExchangeFormat kFormats[] = {
    {"xliff", "XLIFF 1.2", kXliffTypes, false, false, xliffText, readXliff},
    {"xliff2", "XLIFF 2.0", {}, false, false, xliff2Text, readXliff},
    {"xcloc", "Xcode Localization Catalog", kXclocTypes, false, true, xclocFiles, readXliff},
};

}  // namespace

std::span<const ExchangeFormat> xmlFormats() {
  return kFormats;
}

}  // namespace glossmill
