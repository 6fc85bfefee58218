#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/FileUrl.h"

namespace glossmill {

/// Something in a project that xcode's rules could not take, or that somebody should look at.
struct Problem {
  FileUrl file;
  std::uint32_t line = 0;    ///< from 1; 0: the file as a whole
  std::uint32_t column = 0;  ///< in UTF-16 units from 1; 0: the line as a whole
  std::string_view kind;     ///< a word of its own, for programs; lives as long as this one runs
  std::string text;          ///< a sentence for a person, without the place

  bool operator==(const Problem&) const = default;
};

}  // namespace glossmill
