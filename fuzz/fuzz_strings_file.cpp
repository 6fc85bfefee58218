#include "fuzz/FuzzSupport.h"
#include "strings/ReferenceStringsFileParser.h"
#include "strings/StringsFileFindings.h"
#include "support/Utf16Text.h"
#include "text/TextDecoder.h"
#include "text/Utf8.h"

namespace glossmill {
namespace {

/// Nothing when the pieces cannot be decoded.
std::optional<std::string> decodePieces(const std::vector<std::string_view>& pieces) {
  TextDecoder decoder;
  std::string text;
  for (const std::string_view piece : pieces) {
    const Outcome fed = decoder.feed(piece, [&text](std::string_view decoded) {
      require(!decoded.empty() && isValidUtf8(decoded), "decoded pieces are whole characters");
      text.append(decoded);
    });
    if (!fed) return std::nullopt;
  }
  return decoder.finish() ? std::optional(text) : std::nullopt;
}

/// Short pieces behind a first one that tells as much about the encoding as the whole file does.
std::vector<std::string_view> filePieces(std::string_view bytes) {
  const DetectedEncoding whole = detectEncoding(bytes);
  std::size_t first = std::min<std::size_t>(bytes.size(), 8);
  const DetectedEncoding start = detectEncoding(bytes.substr(0, first));
  if (start.encoding != whole.encoding || start.markLength != whole.markLength) first = bytes.size();
  std::vector<std::string_view> pieces = cutInPieces(bytes.substr(first));
  pieces.insert(pieces.begin(), bytes.substr(0, first));
  return pieces;
}

enum class ByteOrder { LittleEndian, BigEndian };

/// With a byte-order mark.
std::string inUtf16(std::string_view text, ByteOrder order) {
  std::string bytes;
  for (const char16_t unit : u'\uFEFF' + toUtf16(text)) {
    const char low = static_cast<char>(unit & 0xFF);
    const char high = static_cast<char>(unit >> 8);
    bytes += order == ByteOrder::LittleEndian ? low : high;
    bytes += order == ByteOrder::LittleEndian ? high : low;
  }
  return bytes;
}

void requireReadableInUtf16(const std::string& text) {
  const Result<std::string> big = decodeText(inUtf16(text, ByteOrder::BigEndian));
  require(big && big.value() == text, "text survives UTF-16, big endian");
  if (text.starts_with('\0')) return;  // the mark and a zero unit are the mark of UTF-32
  const Result<std::string> little = decodeText(inUtf16(text, ByteOrder::LittleEndian));
  require(little && little.value() == text, "text survives UTF-16, little endian");
}

/// Every second text between quotes, each once: so some keys of the file have a match and some have none.
std::vector<std::string> someKeys(std::string_view text) {
  std::vector<std::string> keys = {"", "Open"};
  std::size_t open = text.find('"');
  for (int count = 0; open != std::string_view::npos && count < 64; ++count) {
    const std::size_t close = text.find('"', open + 1);
    if (close == std::string_view::npos) break;
    const std::string key(text.substr(open + 1, close - open - 1));
    if (count % 2 == 0 && std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
    open = count % 4 == 3 ? text.find('"', close + 1) : close;
  }
  return keys;
}

void parseText(std::string_view text) {
  const std::vector<std::string> keys = someKeys(text);
  const StringsFileFindings whole = parseStringsFile({text}, keys);
  require(whole == ReferenceStringsFileParser(text, keys).findings, "findings are those of the plain rules");
  require(parseStringsFile(cutInPieces(text), keys) == whole, "pieces give what the whole gives");
  require(parseStringsFile({text}, keys, text) == whole, "a second file gives what the first gave");
}

void readFile(std::string_view bytes) {
  const Result<std::string> text = decodeText(bytes);
  const std::optional<std::string> pieces = decodePieces(filePieces(bytes));
  require(text.ok() == pieces.has_value(), "pieces are readable when the whole is");
  if (!text) return;
  require(text.value() == pieces, "pieces decode to what the whole decodes to");
  requireReadableInUtf16(text.value());
  parseText(text.value());
}

}  // namespace
}  // namespace glossmill

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  glossmill::readFile(glossmill::asText(data, size));
  return 0;
}
