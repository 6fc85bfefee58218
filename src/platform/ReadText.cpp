#include "platform/ReadText.h"

#include <memory>

#include "platform/TextReader.h"

namespace glossmill {

Result<std::string> readText(ByteReader& reader) {
  std::string text;
  const Result<std::string_view> read = readText(reader, text);
  if (!read) return read.error();
  if (read.value().data() != text.data()) text = read.value();
  return text;
}

Result<std::string_view> readText(ByteReader& reader, std::string& room) {
  if (const std::optional<std::string_view> atHand = reader.textAtHand()) return *atHand;
  static thread_local const auto kPieceRoom = std::make_unique<TextReader::Room>();
  TextReader pieces(reader);
  room.clear();
  while (true) {
    const Result<bool> more = pieces.next(*kPieceRoom, [&room](std::string_view piece) { room.append(piece); });
    if (!more) return more.error();
    if (!more.value()) return std::string_view(room);
  }
}

Result<std::string> readText(FileReading& files, const FileUrl& file) {
  const Result<std::unique_ptr<ByteReader>> reader = files.open(file);
  return reader ? readText(*reader.value()) : Result<std::string>(reader.error());
}

}  // namespace glossmill
