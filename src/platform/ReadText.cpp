#include "platform/ReadText.h"

#include <vector>

#include "text/TextDecoder.h"

namespace glossmill {

namespace {

constexpr std::size_t kWindow = 32 * 1024;

/// Fills the window unless the file ends before: the decoder wants a first piece that is not short.
Result<std::size_t> readWindow(ByteReader& reader, std::span<char> window) {
  std::size_t filled = 0;
  while (filled < window.size()) {
    const Result<std::size_t> got = reader.read(window.subspan(filled));
    if (!got) return got.error();
    if (got.value() == 0) break;
    filled += got.value();
  }
  return filled;
}

Outcome readPieces(ByteReader& reader, const std::function<void(std::string_view)>& sink) {
  static thread_local std::vector<char> window(kWindow);
  TextDecoder decoder;
  while (true) {
    const Result<std::size_t> got = readWindow(reader, window);
    if (!got) return got.error();
    const Outcome fed = decoder.feed({window.data(), got.value()}, sink);
    if (!fed) return fed;
    if (got.value() < window.size()) return decoder.finish();
  }
}

}  // namespace

Outcome readTextPieces(FileReading& files, const FileUrl& file, const std::function<void(std::string_view)>& sink) {
  const Result<std::unique_ptr<ByteReader>> reader = files.open(file);
  return reader ? readPieces(*reader.value(), sink) : Outcome(reader.error());
}

Result<std::string> readText(ByteReader& reader) {
  std::string text;
  const Outcome outcome = readPieces(reader, [&text](std::string_view piece) { text.append(piece); });
  if (!outcome) return outcome.error();
  return text;
}

Result<std::string> readText(FileReading& files, const FileUrl& file) {
  const Result<std::unique_ptr<ByteReader>> reader = files.open(file);
  return reader ? readText(*reader.value()) : Result<std::string>(reader.error());
}

}  // namespace glossmill
