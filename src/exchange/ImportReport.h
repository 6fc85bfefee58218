#pragma once

#include <cstddef>
#include <optional>

#include "model/Edit.h"
#include "text/Result.h"

namespace glossmill {

/// What an import did.
struct ImportReport {
  std::optional<Error> unread;  ///< why the file could not be read; nothing was imported then
  std::size_t added = 0;
  std::size_t changed = 0;
  std::size_t unchanged = 0;
  std::size_t unknown = 0;  ///< keys of the file that no string has; not counted by an import that was cancelled

  void count(const Edit& edit);
  /// Strings that the file named.
  std::size_t known() const { return added + changed + unchanged; }
};

}  // namespace glossmill
