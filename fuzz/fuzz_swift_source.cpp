#include "fuzz/SourceChecks.h"
#include "text/TextDecoder.h"
#include "xcode/AppleRoutines.h"
#include "xcode/PlainCallReader.h"

namespace glossmill {
namespace {

void readSource(std::string_view text) {
  const std::vector<SourceToken> tokens = tokensOf<SwiftLexer>(text);
  requireOrder(tokens, text);
  requireSkips<SwiftLexer>(tokens, text);
  for (const SourceToken& token : tokens) {
    if (token.kind != SourceToken::Kind::Literal) continue;
    const Result<std::string> value = swiftLiteralValue(spellingOf(token, text));
    require(!value || isValidUtf8(value.value()), "what a literal stands for is valid UTF-8");
  }
  const RoutineTable routines = routinesInSwift({parseRoutine("L(key, table, comment)").value()});
  const SourceCalls found = readCallsInSwift(text, routines);
  requireSound(found, text);
  require(found == PlainCallReader::readInSwift(text, routines), "calls are those that every token tells");
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const glossmill::Result<std::string> text = glossmill::decodeText(glossmill::asText(data, size));
  if (text) glossmill::readSource(text.value());
  return 0;
}
