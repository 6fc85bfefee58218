#pragma once

#include <string_view>

namespace glossmill {

// The names of members in a string catalog.
inline constexpr std::string_view kStringsName = "strings";
inline constexpr std::string_view kLocalizationsName = "localizations";
inline constexpr std::string_view kUnitName = "stringUnit";
inline constexpr std::string_view kStateName = "state";
inline constexpr std::string_view kValueName = "value";
inline constexpr std::string_view kVariationsName = "variations";
inline constexpr std::string_view kSubstitutionsName = "substitutions";
inline constexpr std::string_view kCommentName = "comment";
inline constexpr std::string_view kExtractionStateName = "extractionState";

}  // namespace glossmill
