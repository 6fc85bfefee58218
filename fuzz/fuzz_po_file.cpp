#include "exchange/PoReader.h"
#include "exchange/PoWriter.h"
#include "fuzz/UnitChecks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glossmill::checkReader(glossmill::asText(data, size), glossmill::readPo, glossmill::poText);
  return 0;
}
