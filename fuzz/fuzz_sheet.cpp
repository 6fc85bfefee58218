#include "exchange/SheetReader.h"
#include "exchange/SheetWriter.h"
#include "fuzz/UnitChecks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glossmill::checkReader(glossmill::asText(data, size), glossmill::readCsv, glossmill::csvText);
  return 0;
}
