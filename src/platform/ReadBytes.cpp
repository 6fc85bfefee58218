#include "platform/ReadBytes.h"

#include <algorithm>
#include <memory>
#include <span>

namespace glossmill {

Result<std::string_view> FileBuffer::read(FileReading& files, const FileUrl& file) {
  const Result<std::unique_ptr<ByteReader>> reader = files.open(file);
  if (!reader) return reader.error();
  std::size_t size = 0;
  while (true) {
    if (size == m_bytes.size()) m_bytes.resize(std::max(kSmallest, 2 * size));
    const Result<std::size_t> got = reader.value()->read(std::span(m_bytes).subspan(size));
    if (!got) return got.error();
    if (got.value() == 0) return std::string_view(m_bytes.data(), size);
    size += got.value();
  }
}

Result<std::string> readBytes(FileReading& files, const FileUrl& file) {
  static thread_local FileBuffer buffer;
  const Result<std::string_view> bytes = buffer.read(files, file);
  if (!bytes) return bytes.error();
  return std::string(bytes.value());
}

}  // namespace glossmill
