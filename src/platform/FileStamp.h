#pragma once

#include <cstdint>

namespace glossmill {

/// What tells whether a file is still the one that was read: any write gives it another stamp. Times are nanoseconds.
struct FileStamp {
  std::uint64_t size = 0;
  std::int64_t modified = 0;
  std::int64_t changed = 0;
  std::uint64_t device = 0;
  std::uint64_t node = 0;
  std::uint32_t mode = 0;   ///< permissions
  std::uint32_t links = 1;  ///< names that the file has

  bool operator==(const FileStamp&) const = default;
};

}  // namespace glossmill
