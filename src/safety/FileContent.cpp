#include "safety/FileContent.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace glossmill {

namespace {

constexpr std::size_t kWindow = 64 * 1024;

/// Fills the window unless the file ends before.
Result<std::string_view> nextPiece(ByteReader& reader, std::vector<char>& window) {
  std::size_t filled = 0;
  while (filled < window.size()) {
    const Result<std::size_t> got = reader.read(std::span(window).subspan(filled));
    if (!got) return got.error();
    if (got.value() == 0) break;
    filled += got.value();
  }
  return std::string_view(window.data(), filled);
}

}  // namespace

BytePieces contentOf(std::shared_ptr<ByteReader> reader) {
  const auto window = std::make_shared<std::vector<char>>(kWindow);
  return [reader = std::move(reader), window]() { return nextPiece(*reader, *window); };
}

BytePieces contentOf(Files& files, const FileUrl& file) {
  return [&files, file, pieces = BytePieces()]() mutable -> Result<std::string_view> {
    if (!pieces) {
      Result<std::unique_ptr<ByteReader>> reader = files.open(file);
      if (!reader) return reader.error();
      pieces = contentOf(std::shared_ptr<ByteReader>(std::move(reader.value())));
    }
    return pieces();
  };
}

BytePieces verified(BytePieces pieces, const ContentHash& hash) {
  return [pieces = std::move(pieces), hash, hasher = std::make_shared<ContentHasher>()]() -> Result<std::string_view> {
    const Result<std::string_view> piece = pieces();
    if (!piece) return piece;
    hasher->add(piece.value());
    if (!piece.value().empty() || hasher->finish() == hash) return piece;
    return Error{"What was read of it is not what it holds."};
  };
}

Result<ContentHash> hashOfContent(const BytePieces& pieces) {
  ContentHasher hasher;
  while (true) {
    const Result<std::string_view> piece = pieces();
    if (!piece) return piece.error();
    if (piece.value().empty()) return hasher.finish();
    hasher.add(piece.value());
  }
}

/// Pieces of files are cut at the same places.
Result<bool> haveSameContent(Files& files, const FileUrl& one, const FileUrl& other) {
  const BytePieces ones = contentOf(files, one);
  const BytePieces others = contentOf(files, other);
  while (true) {
    const Result<std::string_view> a = ones();
    if (!a) return a.error();
    const Result<std::string_view> b = others();
    if (!b) return b.error();
    if (a.value() != b.value()) return false;
    if (a.value().empty()) return true;
  }
}

}  // namespace glossmill
