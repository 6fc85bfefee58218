#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/Status.h"

namespace glossmill {

/// An opaque colour.
struct Color {
  int red = 0;
  int green = 0;
  int blue = 0;
  bool operator==(const Color&) const = default;
};

inline constexpr Color kRedColor{1, 0, 0};
inline constexpr Color kGreenColor{0, 1, 0};
inline constexpr Color kBlueColor{0, 0, 1};
inline constexpr Color kBlackColor{0, 0, 0};

// One-way transformers of model values into what tables and labels show. The declared result classes differ from what
// they really give; they are kept as they were declared (rule 62).

/// Status to colour.
class StatusToTextColorTransformer {
 public:
  static bool allowsReverseTransformation() { return false; }
  static std::string_view transformedValueClass() { return "NSString"; }
  static Color transformedValue(std::optional<Status> status);
};

/// Size of a list to a label.
class ArrayCountToLabelTextTransformer {
 public:
  static bool allowsReverseTransformation() { return false; }
  static std::string_view transformedValueClass() { return "NSMutableArray"; }
  /// No list gives "0".
  static std::string transformedValue(std::optional<std::size_t> count);
};

/// Flag to colour.
class BOOLToColorTransformer {
 public:
  static bool allowsReverseTransformation() { return false; }
  static std::string_view transformedValueClass() { return "NSNumber"; }
  static Color transformedValue(std::optional<bool> flag);
};

}  // namespace glossmill
