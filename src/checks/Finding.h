#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "checks/FormatSpecifier.h"

namespace glossmill {

/// What is looked for, one for each kind of mistake; their names and defaults stand in CheckList.
enum class Check {
  Missing,
  Format,
  NotKept,
  Malformed,
  Duplicate,
  WhiteSpace,
  Invisible,
  Punctuation,
  Identical,
  Unused,
  Inconsistent,
  NotLiteral,
};

inline constexpr std::size_t kCheckCount = 12;

enum class Severity { Info, Warning, Error };

/// What exactly is wrong; FindingSentences says it in words.
enum class FindingKind {
  NoTranslation,
  EmptyTranslation,
  ArgumentMissing,
  ArgumentSurplus,
  ArgumentSkipped,
  ArgumentOfOtherType,
  ArgumentOfOtherSize,
  PositionsMixed,
  StraySign,
  KeyNotKept,
  TextNotKept,
  WhiteSpaceInFront,
  WhiteSpaceBehind,
  LineBreaks,
  ControlCharacter,
  DirectionLeftOpen,
  ReplacementCharacter,
  NoBreakSpace,
  OtherClosingMark,
  SameAsSource,
  OtherTranslationElsewhere,
  RepeatedKey,
  RepeatedKeyOtherText,
  UnusedEntry,
  ReportedProblem,
};

/// Something wrong with one translation. The ranges are bytes of the two texts, empty where there is nothing to mark.
struct Finding {
  Check check = Check::Missing;
  Severity severity = Severity::Error;  ///< by default; a project may have others
  FindingKind kind = FindingKind::NoTranslation;
  std::string what;   ///< what the sentence is about, as it stands in the text
  std::string other;  ///< what it is compared with
  TextRange inSource;
  TextRange inTranslation;

  bool operator==(const Finding&) const = default;
};

/// How texts say what has no sign of its own.
enum class TextForm {
  Raw,     ///< as between quotes in a file: a line break is a backslash and an "n"
  Values,  ///< a line break is one
};

/// What a check of one text looks at. The views outlive the check.
struct CheckedText {
  std::string_view source;        ///< what the row says in the language of its sources
  std::string_view translation;   ///< not empty
  std::string_view language;      ///< code of the translation's language, such as "pt-BR"
  std::string_view baseLanguage;  ///< code of the source text's language; empty where it is not known
  TextForm form = TextForm::Values;
};

}  // namespace glossmill
