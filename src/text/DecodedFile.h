#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "text/EightBitEncodings.h"
#include "text/Result.h"
#include "text/TextDecoder.h"

namespace glossmill {

using FileEncoding = std::variant<TextEncoding, EightBitEncoding>;

/// The encoding that a project file names by this number (30 is Mac Roman); nothing for the numbers that are not read.
/// UTF-16 without an order is big endian.
std::optional<FileEncoding> encodingOfNumber(std::uint32_t number);

/// The encoding of an Internet name such as "iso-8859-1", in any case.
std::optional<FileEncoding> encodingOfName(std::string_view name);

/// As a person calls it.
std::string_view displayName(const FileEncoding& encoding);

/// A whole file as UTF-8 text, and how its bytes stand for it. Bytes become text and text bytes again without a loss.
struct DecodedFile {
  std::string text;  ///< without the byte-order mark; a second one stays part of it
  FileEncoding encoding = TextEncoding::Utf8;
  bool hasMark = false;
};

/// The same where it lies.
struct FileTextView {
  std::string_view text;
  FileEncoding encoding = TextEncoding::Utf8;
  bool hasMark = false;
};

/// By the byte-order mark, else UTF-16 by its zero bytes, else UTF-8, else `otherwise`.
Result<DecodedFile> textOfFile(std::string_view bytes, std::optional<FileEncoding> otherwise);
/// The same without a copy: the text is part of the bytes or, where these had to be decoded, all of `decoded`.
Result<FileTextView> viewOfFile(std::string_view bytes, std::optional<FileEncoding> otherwise, std::string& decoded);

/// The bytes of text in `encoding`, whatever marks and zero bytes say.
Result<std::string> decodeAs(std::string_view bytes, const FileEncoding& encoding);

/// An error names the first character that the encoding lacks.
Result<std::string> bytesOfFile(const DecodedFile& file);

}  // namespace glossmill
