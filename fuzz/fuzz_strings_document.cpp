#include <optional>
#include <string>

#include "fuzz/FuzzSupport.h"
#include "text/Utf8.h"
#include "xcode/StringsEdits.h"
#include "xcode/StringsKeys.h"
#include "xcode/StringsLayout.h"

namespace glossmill {
namespace {

/// Entries stand one behind the other inside the body.
void requireOrder(const StringsDocument& document) {
  std::size_t at = document.body().begin;
  for (const StringsEntry& entry : document.entries()) {
    require(entry.begin >= at && entry.begin <= entry.key.begin, "an entry begins behind the one in front of it");
    require(entry.key.begin <= entry.key.end && entry.value.begin <= entry.value.end, "texts end behind their begin");
    require(entry.value.end <= entry.end && entry.end <= document.text().size(), "an entry holds its value");
    require(isValidUtf8(document.keyOf(entry)) && isValidUtf8(document.valueOf(entry)), "texts are valid UTF-8");
    at = entry.end;
  }
}

std::optional<std::string> valueIn(const StringsDocument& document, const std::string& key) {
  const std::uint32_t entry = StringsKeys(document).lastOf(key);
  if (entry == StringsKeys::kNone) return std::nullopt;
  return document.valueOf(document.entries()[entry]);
}

/// The edits are read back, and every other key keeps its value.
void requireEdited(const StringsDocument& document, const std::vector<StringsEdit>& edits,
                   const StringsDocument& development) {
  const Result<std::string> bytes = editedStrings(document, edits, &development);
  if (!bytes) return;
  const StringsDocument after(bytes.value(), document.file().encoding);
  require(!after.error(), "an edited file has no mistake");
  for (const StringsEdit& edit : edits) require(valueIn(after, edit.key) == edit.value, "an edit is read back");
  for (const StringsEntry& entry : document.entries()) {
    const std::string key = document.keyOf(entry);
    const auto isOfKey = [&](const StringsEdit& edit) { return edit.key == key; };
    if (std::any_of(edits.begin(), edits.end(), isOfKey)) continue;
    require(valueIn(after, key) == valueIn(document, key), "what is not edited stays");
  }
}

/// Edits of some of the keys, and of one that is new.
std::vector<StringsEdit> someEdits(const StringsDocument& document, std::uint8_t choice) {
  std::vector<StringsEdit> edits{{"new \"key\"", "\\\n\t", "a */ -- comment"}};
  const StringsKeys keys(document);
  for (const std::uint32_t entry : keys.lastEntries()) {
    const std::string key = document.keyOf(document.entries()[entry]);
    if (key == edits.front().key || edits.size() > 8) continue;
    const unsigned kind = (choice >> (edits.size() % 6)) & 3U;
    if (kind == 1) edits.push_back({key, std::nullopt, {}});
    if (kind == 2) edits.push_back({key, "a \"'\n\xC3\xA4", {}});
  }
  return edits;
}

void readStrings(std::string bytes, std::uint8_t choice) {
  const StringsDocument document(bytes, EightBitEncoding::MacRoman);
  requireOrder(document);
  document.repeatedKeys();
  if (document.error()) {
    require(document.error()->place.line >= 1 && document.error()->place.column >= 1, "a mistake has a place");
    require(!editedStrings(document, {}, nullptr), "a file with a mistake is not written");
    return;
  }
  const Result<std::string> same = editedStrings(document, {}, nullptr);
  require(same && same.value() == bytes, "opening and saving changes no byte");
  const std::size_t middle = bytes.size() / 2;
  const StringsDocument development(bytes.substr(middle) + bytes.substr(0, middle), EightBitEncoding::MacRoman);
  requireEdited(document, someEdits(document, choice), development);
  requireEdited(document, someEdits(document, choice), document);
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  glossmill::readStrings(std::string(glossmill::asText(data + 1, size - 1)), data[0]);
  return 0;
}
