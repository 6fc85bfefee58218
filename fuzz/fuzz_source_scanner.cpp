#include "fuzz/FuzzSupport.h"
#include "scan/ReferenceSourceScanner.h"
#include "scan/ScannedSource.h"
#include "text/TextDecoder.h"
#include "text/Utf16.h"

namespace glossmill {
namespace {

constexpr std::size_t kLongestForReference = 4096;  // whose time grows with the square
constexpr std::size_t kExcerptUnits = 80;

void requireStringsInText(const ScannedSource& scan, std::string_view text) {
  for (const SourceString& string : scan.strings) {
    require(liesIn(string.name, text) && liesIn(string.comment, text), "names and comments lie in the text");
    require(string.name.data() + string.name.size() < string.comment.data(), "a comment follows its name");
    require(string.name.find('"') == std::string_view::npos, "a name ends at the first quote");
    require(string.comment.find('"') == std::string_view::npos, "a comment ends at the first quote");
  }
}

void requireShortExcerpts(const ScannedSource& scan) {
  for (const std::string& excerpt : scan.badCalls) {
    require(isValidUtf8(excerpt), "an excerpt is valid UTF-8");
    require(utf16Length(excerpt) <= kExcerptUnits, "an excerpt is at most 80 units long");
  }
}

void requireSameAsReference(const ScannedSource& scan, std::string_view text) {
  const ReferenceSourceScanner expected(text);
  require(scan.badCalls == expected.badCalls, "bad calls are those of the plain rules");
  const auto isSame = [](const SourceString& a, const ReferenceSourceScanner::String& b) {
    return a.name == b.name && a.comment == b.comment;
  };
  require(
      std::equal(scan.strings.begin(), scan.strings.end(), expected.strings.begin(), expected.strings.end(), isSame),
      "strings are those of the plain rules");
}

void scanText(std::string_view text) {
  const ScannedSource scan(text);
  require(!scan.wasCanceled, "nobody cancelled");
  requireStringsInText(scan, text);
  requireShortExcerpts(scan);
  if (text.size() <= kLongestForReference) requireSameAsReference(scan, text);
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const glossmill::Result<std::string> text = glossmill::decodeText(glossmill::asText(data, size));
  if (text) glossmill::scanText(text.value());
  return 0;
}
