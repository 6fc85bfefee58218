#include "fuzz/FuzzSupport.h"
#include "text/TextDecoder.h"
#include "text/Utf8.h"
#include "xcode/PrintedPropertyList.h"
#include "xcode/ReferencePropertyList.h"
#include "xcode/XmlReader.h"

namespace glossmill {
namespace {

void requireSameAsReference(const PropertyList& list, std::string_view text) {
  const std::optional<std::string> expected = ReferencePropertyList::read(text);
  require(expected.has_value() == !list.error(), "a list is correct when it is by the plain rules");
  if (expected) require(printed(list) == *expected, "the list is that of the plain rules");
}

void readList(const std::string& text) {
  const PropertyList list(text);
  const std::string whole = printed(list);
  require(isValidUtf8(whole), "texts are valid UTF-8");
  if (list.error()) require(list.error()->place.line >= 1 && list.error()->place.column >= 1, "a mistake has a place");
  if (isXml(text)) return;
  if (list.root()) require(printed(PropertyList(whole)) == whole, "a list reads as it was printed");
  requireSameAsReference(list, text);
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const glossmill::Result<std::string> text = glossmill::decodeText(glossmill::asText(data, size));
  if (text) glossmill::readList(text.value());
  return 0;
}
