#pragma once

#include <functional>

#include "model/Language.h"
#include "model/LanguageTexts.h"
#include "platform/Files.h"

namespace glossmill {

/// What became of the strings file of one language.
struct SaveOutcome {
  enum class Kind {
    Written,
    Created,          ///< there was no such file before
    Failed,           ///< the former file is whole
    DirectoryFailed,  ///< its directory is missing and cannot be made
  };
  const Language& language;
  Kind kind = Kind::Written;
  Error error;  ///< of a failure

  bool isWritten() const { return kind == Kind::Written || kind == Kind::Created; }
};

/// Hears of each file as it is written.
using SaveListener = std::function<void(const SaveOutcome&)>;

/// Writes the strings file of each language, also behind one that could not be written. A language that has only its
/// directory so far gets a file in it. True when all were written. The languages are kept alive meanwhile.
bool saveLanguages(Files& files, LanguageTexts& texts, const LanguageArray& languages, const SaveListener& listener);

}  // namespace glossmill
