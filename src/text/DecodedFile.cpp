#include "text/DecodedFile.h"

#include <algorithm>
#include <utility>

#include "text/Format.h"
#include "text/Utf8.h"

namespace glossmill {

namespace {

struct EncodingName {
  FileEncoding encoding;
  std::string_view displayName;
  std::string_view internetName;  ///< in lower case
  std::uint32_t number;
};

/// The first entry of an encoding is the one that is displayed.
constexpr EncodingName kEncodings[] = {
    {TextEncoding::Utf8, "UTF-8", "utf-8", 4},
    {TextEncoding::Utf16BigEndian, "UTF-16", "utf-16", 10},
    {TextEncoding::Utf16BigEndian, "UTF-16", "utf-16be", 0x90000100},
    {TextEncoding::Utf16LittleEndian, "UTF-16", "utf-16le", 0x94000100},
    {TextEncoding::Utf32BigEndian, "UTF-32", "utf-32", 0x8C000100},
    {TextEncoding::Utf32BigEndian, "UTF-32", "utf-32be", 0x98000100},
    {TextEncoding::Utf32LittleEndian, "UTF-32", "utf-32le", 0x9C000100},
    {EightBitEncoding::Ascii, "ASCII", "us-ascii", 1},
    {EightBitEncoding::NextStep, "NeXTSTEP", "x-nextstep", 2},
    {EightBitEncoding::Latin1, "ISO Latin 1", "iso-8859-1", 5},
    {EightBitEncoding::Latin2, "ISO Latin 2", "iso-8859-2", 9},
    {EightBitEncoding::Windows1252, "Windows 1252", "windows-1252", 12},
    {EightBitEncoding::MacRoman, "Mac Roman", "macintosh", 30},
};

template <typename Test>
const EncodingName* findEncoding(const Test& test) {
  const auto* const found = std::find_if(std::begin(kEncodings), std::end(kEncodings), test);
  return found == std::end(kEncodings) ? nullptr : found;
}

std::string asciiLowerCase(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter | 0x20) : letter;
  return lower;
}

bool isLittleEndian(TextEncoding encoding) {
  return encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf32LittleEndian;
}

void putUnit(std::string& bytes, char32_t unit, std::size_t size, bool littleEndian) {
  for (std::size_t i = 0; i < size; ++i) {
    const std::size_t shift = 8 * (littleEndian ? i : size - 1 - i);
    bytes += static_cast<char>(static_cast<unsigned char>(unit >> shift & 0xFF));
  }
}

void putUtf16(std::string& bytes, char32_t codePoint, bool littleEndian) {
  if (codePoint < 0x10000) {
    putUnit(bytes, codePoint, 2, littleEndian);
    return;
  }
  putUnit(bytes, 0xD800 + ((codePoint - 0x10000) >> 10), 2, littleEndian);
  putUnit(bytes, 0xDC00 + ((codePoint - 0x10000) & 0x3FF), 2, littleEndian);
}

std::string unicodeBytes(std::string_view text, TextEncoding encoding) {
  if (encoding == TextEncoding::Utf8) return std::string(text);
  const bool isUtf16 = encoding == TextEncoding::Utf16LittleEndian || encoding == TextEncoding::Utf16BigEndian;
  const bool littleEndian = isLittleEndian(encoding);
  std::string bytes;
  bytes.reserve(text.size() * (isUtf16 ? 2 : 4));
  while (!text.empty()) {
    const char32_t codePoint = takeCodePoint(text);
    if (isUtf16) {
      putUtf16(bytes, codePoint, littleEndian);
    } else {
      putUnit(bytes, codePoint, 4, littleEndian);
    }
  }
  return bytes;
}

Result<std::string> eightBitBytes(std::string_view text, EightBitEncoding encoding) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const std::string_view before = text;
    const std::optional<unsigned char> byte = byteOfCharacter(encoding, takeCodePoint(text));
    if (!byte) {
      const std::string_view character = before.substr(0, before.size() - text.size());
      return Error{formatText("The character “%@” cannot be written in the encoding of the file, %@.",
                              {character, displayName(encoding)})};
    }
    bytes += static_cast<char>(*byte);
  }
  return bytes;
}

Result<std::string> eightBitText(std::string_view bytes, EightBitEncoding encoding) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) {
    const std::optional<char32_t> character = characterOfByte(encoding, static_cast<unsigned char>(byte));
    if (!character) return Error{formatText("The file is not valid %@.", {displayName(encoding)})};
    appendUtf8(text, *character);
  }
  return text;
}

Result<FileTextView> viewOf(Result<std::string> text, FileEncoding encoding, bool hasMark, std::string& decoded) {
  if (!text) return text.error();
  decoded = std::move(text.value());
  return FileTextView{decoded, encoding, hasMark};
}

}  // namespace

std::optional<FileEncoding> encodingOfNumber(std::uint32_t number) {
  const EncodingName* found = findEncoding([number](const EncodingName& name) { return name.number == number; });
  return found ? std::optional(found->encoding) : std::nullopt;
}

std::optional<FileEncoding> encodingOfName(std::string_view name) {
  const std::string lower = asciiLowerCase(name);
  const EncodingName* found = findEncoding([&](const EncodingName& other) { return other.internetName == lower; });
  return found ? std::optional(found->encoding) : std::nullopt;
}

std::string_view displayName(const FileEncoding& encoding) {
  return findEncoding([&](const EncodingName& name) { return name.encoding == encoding; })->displayName;
}

Result<FileTextView> viewOfFile(std::string_view bytes, std::optional<FileEncoding> otherwise, std::string& decoded) {
  const DetectedEncoding detected = detectEncoding(bytes);
  const bool hasMark = detected.markLength != 0;
  if (detected.encoding != TextEncoding::Utf8) {
    return viewOf(decodeText(bytes), detected.encoding, hasMark, decoded);
  }
  const std::size_t valid = validUtf8Prefix(bytes);
  if (valid == bytes.size()) return FileTextView{bytes.substr(detected.markLength), TextEncoding::Utf8, hasMark};
  if (!hasMark && otherwise) return viewOf(decodeAs(bytes, *otherwise), *otherwise, false, decoded);
  return decodeText(bytes).error();
}

Result<DecodedFile> textOfFile(std::string_view bytes, std::optional<FileEncoding> otherwise) {
  std::string decoded;
  const Result<FileTextView> view = viewOfFile(bytes, otherwise, decoded);
  if (!view) return view.error();
  const bool isDecoded = view.value().text.data() == decoded.data();
  return DecodedFile{isDecoded ? std::move(decoded) : std::string(view.value().text), view.value().encoding,
                     view.value().hasMark};
}

/// The decoder believes marks, so it is given the one that fits.
Result<std::string> decodeAs(std::string_view bytes, const FileEncoding& encoding) {
  if (const auto* eightBit = std::get_if<EightBitEncoding>(&encoding)) return eightBitText(bytes, *eightBit);
  std::string marked = unicodeBytes("\uFEFF", std::get<TextEncoding>(encoding));
  marked += bytes;
  return decodeText(marked);
}

Result<std::string> bytesOfFile(const DecodedFile& file) {
  if (const auto* eightBit = std::get_if<EightBitEncoding>(&file.encoding)) return eightBitBytes(file.text, *eightBit);
  const auto encoding = std::get<TextEncoding>(file.encoding);
  if (!file.hasMark) return unicodeBytes(file.text, encoding);
  return unicodeBytes("\uFEFF", encoding) + unicodeBytes(file.text, encoding);
}

}  // namespace glossmill
