#pragma once

#include <memory>
#include <optional>
#include <string>

#include "model/LanguageCode.h"

namespace glossmill {

class LocalizeString;

/// One change of one translation. No text is no entry, which is not the same as the empty text.
struct Edit {
  std::shared_ptr<LocalizeString> record;
  LanguageCode language;
  std::optional<std::string> before;
  std::optional<std::string> after;

  bool changesNothing() const { return before == after; }
  /// 1 when an entry comes, -1 when one goes, 0 when one text replaces another.
  int entryDifference() const { return (after ? 1 : 0) - (before ? 1 : 0); }
};

/// What an edit is made by.
enum class EditKind {
  Typing,
  TypingBack,  ///< an editor takes back by itself what was typed into it
  Import,
  Fill,
  Replacement,  ///< of a text by another, everywhere
  Removal,      ///< of entries that nothing uses
  Undo,         ///< or redo
  Recovery,     ///< of what a former session left unsaved
};

constexpr bool isTyping(EditKind kind) {
  return kind == EditKind::Typing || kind == EditKind::TypingBack;
}

/// The edit that gives the record this text in the language, or takes its entry away.
Edit editOf(std::shared_ptr<LocalizeString> record, LanguageCode language, std::optional<std::string> after);

}  // namespace glossmill
