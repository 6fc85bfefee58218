#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "checks/Finding.h"

namespace glossmill {

/// A finding with all that is needed to show it, to hand it on and to know it again. `severity` is the one that the
/// project gives it.
struct PlacedFinding : Finding {
  std::string file;          ///< path from the project's directory; a whole path outside of it; empty without a file
  std::uint32_t line = 0;    ///< from 1; 0: the file as a whole
  std::uint32_t column = 0;  ///< in UTF-16 units from 1; 0: the line as a whole
  std::string language;      ///< code; empty: about no language, as a call is
  std::string table;         ///< id; empty where a project has one table only, or the finding is about no string
  std::string key;           ///< empty: about no string
  std::optional<std::string> source;       ///< the row's source text
  std::optional<std::string> translation;  ///< nothing where there is no entry
  std::string sentence;                    ///< `kind` in English, with all that it is about filled in
  /// The same for the same mistake in a later run, also when lines have moved or the texts are others; not the same
  /// twice in a run. 16 hexadecimal digits.
  std::string fingerprint;

  bool operator==(const PlacedFinding&) const = default;
};

}  // namespace glossmill
