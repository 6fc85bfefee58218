#pragma once

#include <span>
#include <string_view>

namespace glossmill {

/// A language as it is written or spoken in one place, under the name that Xcode gives its `.lproj` directory.
struct RegionalLanguage {
  std::string_view code;  ///< language, script and region, such as "zh-Hans" or "es-419"
  std::string_view name;  ///< in English
};

/// Those that stand beside the languages of the ISO 639 table, by their codes.
std::span<const RegionalLanguage> regionalLanguages();

/// The English name; empty for a code that is none of them.
std::string_view nameOfRegionalLanguage(std::string_view code);

}  // namespace glossmill
