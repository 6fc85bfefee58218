#include <string>

#include "fuzz/FuzzSupport.h"
#include "text/Utf8.h"
#include "xcode/CatalogEdits.h"

namespace glossmill {
namespace {

std::string valueIn(const CatalogDocument& document, const CatalogEdit& edit) {
  std::string value = "none";
  for (const ValueTree::Number number : document.keys()) {
    const CatalogKey key = document.keyAt(number);
    if (key.key != edit.key) continue;
    for (const CatalogUnit& unit : key.units) {
      if (unit.language == edit.language && unit.variation == edit.variation) value = "text " + unit.value;
    }
  }
  return value;
}

/// What was written reads as it was meant to.
void requireEdited(const CatalogDocument& document, const CatalogEdit& edit) {
  const Result<std::string> bytes = editedCatalog(document, {edit});
  if (!bytes) return;
  const CatalogDocument after(bytes.value());
  require(!after.error(), "an edited catalog has no mistake");
  require(valueIn(after, edit) == (edit.value ? "text " + *edit.value : "none"), "an edit is read back");
}

void readCatalog(std::string bytes) {
  const CatalogDocument document(bytes);
  if (document.error()) {
    require(document.error()->place.line >= 1 && document.error()->place.column >= 1, "a mistake has a place");
    require(!editedCatalog(document, {}), "a catalog with a mistake is not written");
  } else {
    const Result<std::string> same = editedCatalog(document, {});
    require(same && same.value() == bytes, "opening and saving changes no byte");
  }
  std::size_t looked = 0;
  for (const ValueTree::Number number : document.keys()) {
    const CatalogKey key = document.keyAt(number);
    require(isValidUtf8(key.key) && isValidUtf8(key.comment), "texts are valid UTF-8");
    if (document.error() || ++looked > 4) continue;
    requireEdited(document, {key.key, "de", {}, "a \"\n\xC3\xA4", {}, {}});
    for (const CatalogUnit& unit : key.units) {
      requireEdited(document, {key.key, unit.language, unit.variation, "b", "new", {}});
      requireEdited(document, {key.key, unit.language, unit.variation, {}, {}, {}});
    }
  }
  if (!document.error()) requireEdited(document, {"new \"key\"", "fr", {{"plural", "one"}}, "c", {}, "a comment"});
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glossmill::readCatalog(std::string(glossmill::asText(data, size)));
  return 0;
}
