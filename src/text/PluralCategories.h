#pragma once

#include <string_view>
#include <vector>

namespace glossmill {

/// Whether this is one of zero, one, two, few, many, other.
bool isPluralCategory(std::string_view name);

/// The plural categories that a text with a count needs in a language, in the order above: those that the whole numbers
/// below a million have, as Unicode's CLDR tells them, and `other`. `language` may have a script and a region. Nothing
/// for a language that is not known.
std::vector<std::string_view> pluralCategories(std::string_view language);

/// Whether a text of this category says something in the language: those that it needs, `zero` for the number 0
/// everywhere, and `many` where only fractions or millions have it. True for a language that is not known.
bool mayHavePluralCategory(std::string_view language, std::string_view category);

}  // namespace glossmill
