#pragma once

#include <string_view>

namespace glossmill {

/// Key and comment of one NSLocalizedString call, raw, as views into the source text.
struct SourceString {
  std::string_view name;
  std::string_view comment;
};

}  // namespace glossmill
