#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/TableRow.h"
#include "platform/FileStamp.h"
#include "platform/Files.h"
#include "text/DecodedFile.h"
#include "text/TextRange.h"

namespace glossmill {

/// A line of a source, without its end.
struct ExcerptLine {
  std::uint32_t number = 0;  ///< from 1
  std::string text;
  TextRange mark;  ///< what of the call stands in this line; empty for none
};

/// The call at this byte of a source: from its name to the parenthesis that closes it, which literals and comments
/// between do not. Only the name where there is none within a few thousand bytes, nothing where there is no name.
TextRange callAt(std::string_view source, std::size_t begin);

/// The lines around a place of a source, with the call there marked; no line when the source has become shorter.
std::vector<ExcerptLine> excerptOf(std::string_view source, std::uint32_t line, std::uint32_t column,
                                   std::uint32_t linesAround);

/// The same read from the disk as it is at this moment, in the encoding that a scan finds: `otherwise` is the one that
/// the project names. The error says why the file cannot be read.
Result<std::vector<ExcerptLine>> readExcerpt(FileReading& files, const SourcePlace& place,
                                             std::optional<FileEncoding> otherwise, std::uint32_t linesAround);

/// The places of a source, in its order, where a string literal holds exactly this raw text: for records that know
/// their files only. At most `most`.
std::vector<SourcePlace> placesOfLiteral(std::string_view source, const FileUrl& file, std::string_view text,
                                         std::size_t most);

enum class SourceState { AsScanned, Changed, Gone, NotKnown };

/// What has become of a source since it was scanned. `scanned` is nothing when nobody looked then, `now` when there is
/// no file.
SourceState sourceState(const std::optional<FileStamp>& scanned, const std::optional<FileStamp>& now);

}  // namespace glossmill
