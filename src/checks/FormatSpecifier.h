#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "text/TextRange.h"

namespace glossmill {

/// What an argument of a format has to be. Conversions that only differ in how they show it are of one kind.
enum class ArgumentKind {
  Object,        ///< "%@"
  Signed,        ///< "%d %D %i", and "*" for a width or a precision
  Unsigned,      ///< "%u %U"
  Hexadecimal,   ///< "%x %X"
  Octal,         ///< "%o %O"
  Floating,      ///< "%f %F %e %E %g %G %a %A"
  Character,     ///< "%c"
  Utf16Unit,     ///< "%C"
  CString,       ///< "%s"
  Utf16String,   ///< "%S"
  Pointer,       ///< "%p"
  CountPointer,  ///< "%n"
  Variable,      ///< "%#@name@": a rule for plurals takes its place
};

/// How large an argument is, by the letters in front of its conversion.
enum class ArgumentSize { Plain, Char, Short, Long, LongLong, Max, Size, Difference };

/// A use of an argument in a format.
struct FormatArgumentUse {
  std::size_t argument = 1;  ///< which one, from 1
  ArgumentKind kind = ArgumentKind::Object;
  ArgumentSize size = ArgumentSize::Plain;
  std::string_view variable;  ///< the name of a variable
  TextRange range;            ///< of the whole specifier
};

/// A "%" that begins no specifier: it is followed by what none begins with, or the text ends before one does.
struct StraySign {
  TextRange range;  ///< the sign and what was read behind it
};

/// What a text says when it is taken as a format of Foundation's or C's. The views point into the text.
struct FormatReading {
  std::vector<FormatArgumentUse> uses;
  std::vector<StraySign> strays;
  bool hasDoubled = false;     ///< "%%" stands somewhere
  bool hasPositions = false;   ///< a specifier says which argument it takes
  bool hasSequential = false;  ///< a specifier takes the next one
};

/// Never fails: what is no specifier is a stray sign. A blank is no flag, since prose says "50% off".
FormatReading readFormat(std::string_view text);

}  // namespace glossmill
