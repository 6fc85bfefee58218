#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace glossmill {

/// Holds the bytes of one file after the other, in the same memory.
class FileBuffer {
 public:
  /// The whole file as it is; valid until the next one is read.
  Result<std::string_view> read(FileReading& files, const FileUrl& file);

 private:
  static constexpr std::size_t kSmallest = std::size_t{256} * 1024;

  std::vector<char> m_bytes;  ///< as long as the longest file needs
};

/// The whole file as it is.
Result<std::string> readBytes(FileReading& files, const FileUrl& file);

}  // namespace glossmill
