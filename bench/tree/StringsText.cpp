#include "tree/StringsText.h"

#include <algorithm>
#include <cstdint>

#include "tree/Vocabulary.h"

namespace glossmill::bench {

namespace {

struct CodePoint {
  std::uint32_t value;
  std::size_t bytes;
};

CodePoint codePointAt(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t offset) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(text[at + offset]));
  };
  if (byte(0) < 0x80) return {byte(0), 1};
  if (byte(0) < 0xE0) return {(byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU), 2};
  if (byte(0) < 0xF0) return {(byte(0) & 0xFU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU), 3};
  return {(byte(0) & 7U) << 18U | (byte(1) & 0x3FU) << 12U | (byte(2) & 0x3FU) << 6U | (byte(3) & 0x3FU), 4};
}

void appendUnit(std::string& bytes, std::uint32_t unit) {
  bytes += static_cast<char>(unit & 0xFFU);
  bytes += static_cast<char>(unit >> 8U);
}

// Words of a longer remark, so that the file comes as near to its share of the size as this entry can bring it.
void appendRemark(std::string& comment, std::size_t missingBytes, Random& random) {
  const std::size_t wanted = comment.size() + missingBytes;
  if (missingBytes > 8) comment += ".";
  while (comment.size() + 4 < wanted) comment.append(" ").append(random.pick(adjectives()));
}

std::string entryText(const std::string& comment, const std::string& key, const std::string& value) {
  return "/* " + comment + " */\n\"" + key + "\" = \"" + value + "\";\n\n";
}

std::size_t sizeOnDisk(std::string_view text, StringsEncoding encoding) {
  if (encoding == StringsEncoding::utf8) return text.size();
  const auto isLead = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
  return 2 * static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isLead));
}

}  // namespace

std::string utf16WithMark(std::string_view text) {
  std::string bytes = "\xFF\xFE";
  bytes.reserve(2 * text.size() + 2);
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint point = codePointAt(text, at);
    at += point.bytes;
    if (point.value < 0x10000U) {
      appendUnit(bytes, point.value);
      continue;
    }
    appendUnit(bytes, 0xD800U + ((point.value - 0x10000U) >> 10U));
    appendUnit(bytes, 0xDC00U + ((point.value - 0x10000U) & 0x3FFU));
  }
  return bytes;
}

std::string stringsText(const LanguageWords& language, const std::vector<std::size_t>& keyIndexes,
                        const StringsShape& shape, Random& random) {
  const std::size_t bytesPerLetter = shape.encoding == StringsEncoding::utf8 ? 1 : 2;
  std::string text;
  std::size_t written = 0;
  for (std::size_t entry = 0; entry < keyIndexes.size(); ++entry) {
    const std::string key = keyText(keyIndexes[entry]);
    const std::string value = translationText(language, random);
    std::string comment = commentText(keyIndexes[entry]);
    const std::size_t bare = written + sizeOnDisk(entryText(comment, key, value), shape.encoding);
    const std::size_t wanted = shape.targetBytes * (entry + 1) / keyIndexes.size();
    if (wanted > bare) appendRemark(comment, (wanted - bare) / bytesPerLetter, random);
    const std::string full = entryText(comment, key, value);
    written += sizeOnDisk(full, shape.encoding);
    text += full;
  }
  return shape.encoding == StringsEncoding::utf8 ? text : utf16WithMark(text);
}

}  // namespace glossmill::bench
