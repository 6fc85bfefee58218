#include "exchange/ImportText.h"
#include "fuzz/FuzzSupport.h"
#include "strings/ReferenceCommentRemover.h"
#include "text/TextDecoder.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char byte : text) {
    if (byte == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += byte;
    }
  }
  return lines;
}

/// The rules as plainly as possible: a line with dashes, one to skip, key and translation, taken together.
ImportTable expectedTable(std::string_view text) {
  ImportTable table;
  const std::vector<std::string> lines = linesOf(ReferenceCommentRemover::remove(text));
  std::size_t at = 0;
  while (at + 3 < lines.size()) {
    if (lines[at].find("---") == std::string::npos) {
      ++at;
      continue;
    }
    if (!lines[at + 3].empty()) table[lines[at + 2]] = lines[at + 3];
    at += 4;
  }
  return table;
}

void importFile(std::string_view text) {
  const ImportTable table = importTable(text);
  require(table == expectedTable(text), "the table is that of the plain rules");
  for (const auto& [key, translation] : table) {
    require(isValidUtf8(key) && isValidUtf8(translation), "keys and translations are valid UTF-8");
    require(!translation.empty(), "an empty translation gives no entry");
  }
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const glossmill::Result<std::string> text = glossmill::decodeText(glossmill::asText(data, size));
  if (text) glossmill::importFile(text.value());
  return 0;
}
