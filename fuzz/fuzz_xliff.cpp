#include "formats/XliffReader.h"
#include "formats/XliffWriter.h"
#include "fuzz/UnitChecks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glossmill::checkReader(glossmill::asText(data, size), glossmill::readXliff, glossmill::xliffText);
  return 0;
}
