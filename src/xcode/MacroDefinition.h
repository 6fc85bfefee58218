#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xcode/SourceToken.h"

namespace glossmill {

/// What stands before the replacement of a macro.
struct MacroHead {
  std::string name;
  std::vector<std::string> parameters;  ///< the first 128 of them
  bool hasParameters = false;           ///< a parenthesis follows its name directly
  bool isVariadic = false;              ///< the last parameter stands for all further arguments
  std::size_t replacement = 0;          ///< where it begins

  /// The number of the parameter of this name.
  std::optional<std::size_t> find(std::string_view parameter) const;
};

/// Reads the head of a macro from a directive; nothing when the directive defines none.
std::optional<MacroHead> readMacroHead(std::string_view text, const SourceToken& directive);

/// A macro with parameters.
struct MacroDefinition {
  MacroHead head;           ///< its replacement begins at 0
  std::string replacement;  ///< without line continuations
};

/// The macros with parameters that a source of the C family defines, in every branch of it.
std::vector<MacroDefinition> readMacros(std::string_view text);

}  // namespace glossmill
