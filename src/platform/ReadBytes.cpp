#include "platform/ReadBytes.h"

#include <vector>

namespace glossmill {

namespace {

constexpr std::size_t kReadAtOnce = 256 * 1024;

}  // namespace

Result<std::string> readBytes(FileReading& files, const FileUrl& file) {
  static thread_local std::vector<char> buffer(kReadAtOnce);
  const Result<std::unique_ptr<ByteReader>> reader = files.open(file);
  if (!reader) return reader.error();
  std::string bytes;
  while (true) {
    const Result<std::size_t> got = reader.value()->read(buffer);
    if (!got) return got.error();
    if (got.value() == 0) return bytes;
    bytes.append(buffer.data(), got.value());
  }
}

}  // namespace glossmill
