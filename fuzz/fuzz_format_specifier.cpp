#include <string>

#include "checks/FormatCheck.h"
#include "fuzz/FuzzSupport.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

/// Where the next sign has to stand: behind what was read, and behind all doubled ones.
std::size_t nextSign(std::string_view text, std::size_t from) {
  std::size_t at = text.find('%', from);
  while (at != text.npos && text.substr(at).starts_with("%%")) at = text.find('%', at + 2);
  return at;
}

/// Every sign begins a specifier, is stray or is doubled, and none is read twice.
void requireAllSigns(std::string_view text, const FormatReading& format) {
  std::size_t use = 0;
  std::size_t stray = 0;
  std::size_t at = nextSign(text, 0);
  while (at != text.npos) {
    const bool isStray = stray < format.strays.size() && format.strays[stray].range.begin == at;
    require(isStray || use < format.uses.size(), "every sign is read");
    const TextRange range = isStray ? format.strays[stray++].range : format.uses[use].range;
    require(range.begin == at && range.length > 0 && at + range.length <= text.size(),
            "a range lies where it was read");
    while (!isStray && use < format.uses.size() && format.uses[use].range == range) ++use;
    at = nextSign(text, at + range.length);
  }
  require(use == format.uses.size() && stray == format.strays.size(), "nothing is read that is not there");
}

void readText(std::string_view text) {
  const FormatReading format = readFormat(text);
  requireAllSigns(text, format);
  for (const FormatArgumentUse& use : format.uses) {
    require(use.argument > 0, "arguments are counted from 1");
    require(use.variable.empty() || liesIn(use.variable, text), "a name is part of the text");
    require((use.kind == ArgumentKind::Variable) == !use.variable.empty(), "variables have names");
  }
  require(format.uses.empty() == !(format.hasPositions || format.hasSequential), "each use is of one way");
  require(formatFindings({text, text, "de", "en", TextForm::Values}).empty(), "a text differs in nothing from itself");
}

void compareTexts(std::string_view source, std::string_view translation) {
  for (const Finding& finding : formatFindings({source, translation, "de", "en", TextForm::Values})) {
    require(finding.inSource.begin + finding.inSource.length <= source.size(), "a range lies in the source text");
    require(finding.inTranslation.begin + finding.inTranslation.length <= translation.size(),
            "a range lies in the translation");
    require(!finding.what.empty(), "a finding says what it is about");
  }
}

}  // namespace
}  // namespace glossmill

/// Two lines, a source text and a translation; the first line end may stand anywhere.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = glossmill::asText(data, size);
  if (!glossmill::isValidUtf8(text)) return 0;
  glossmill::readText(text);
  const std::size_t end = std::min(text.find('\n'), text.size());
  glossmill::compareTexts(text.substr(0, end), text.substr(std::min(end + 1, text.size())));
  return 0;
}
