#pragma once

#include <cstdint>
#include <optional>

#include "safety/SaveManifest.h"

namespace glossmill {

/// How many entries the files of a save held before and after it.
struct EntryCounts {
  std::optional<std::uint64_t> before = 0;  ///< nothing: not known of one of the files
  std::uint64_t after = 0;

  /// 0 when there are as many or more afterwards.
  std::optional<std::uint64_t> notWritten() const {
    if (!before) return std::nullopt;
    return *before > after ? *before - after : 0;
  }
};

EntryCounts entryCounts(const SaveManifest& manifest);

}  // namespace glossmill
