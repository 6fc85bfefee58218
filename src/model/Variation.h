#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glossmill {

/// One step from a key to one of its texts: a plural category, a device, or a part of the text that varies by itself.
struct VariationStep {
  std::string kind;  ///< kPluralKind, kDeviceKind, kPartKind, or what else a file says
  std::string name;

  bool operator==(const VariationStep&) const = default;
};

inline constexpr std::string_view kPluralKind = "plural";
inline constexpr std::string_view kDeviceKind = "device";
inline constexpr std::string_view kPartKind = "@";

/// Empty for the text of the key itself.
using Variation = std::vector<VariationStep>;

/// Between a key and its steps in the name of a row: "%lld files ▸ one".
inline constexpr std::string_view kVariationMark = " ▸ ";

/// The name of the row of a variation: a plural category and a device by their names, a part behind `@`, anything else,
/// and what would be taken for something else, as `kind:name`. Nothing for a step whose name would read otherwise.
std::optional<std::string> rowName(std::string_view key, const Variation& variation);

/// Whether the last step is a plural category.
bool endsInPlural(const Variation& variation);
/// The same with another last step of its kind.
Variation withLastName(Variation variation, std::string_view name);

}  // namespace glossmill
