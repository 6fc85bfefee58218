#pragma once

#include <utility>
#include <vector>

namespace glossmill {

/// The characters that one place of an expression takes, such as "[^a-z\d]".
struct CharacterSet {
  enum class Kind { Digits, Words, Blanks };
  struct Class {
    Kind kind = Kind::Digits;
    bool isNegated = false;
  };

  std::vector<std::pair<char32_t, char32_t>> stretches;  ///< first and last
  std::vector<Class> classes;
  bool isNegated = false;

  bool holds(char32_t character) const;
  /// Adds what the characters' twins in lower case are.
  void foldCases();
};

}  // namespace glossmill
