#pragma once

#include <cstddef>
#include <string_view>

#include "model/LanguageCode.h"

namespace glossmill {

/// The texts of the strings files of several languages, made piece by piece while they are written.
class LanguageTexts {
 public:
  virtual ~LanguageTexts() = default;
  /// Begins the text of a language, one of those that this was made for; also once more from the start.
  virtual void start(LanguageCode language) = 0;
  /// The next piece of it, cut between characters; empty at the end. Valid until the next call.
  virtual std::string_view nextPiece() = 0;
  /// How many entries the text of a language holds.
  virtual std::size_t entryCount(LanguageCode language) const = 0;
};

}  // namespace glossmill
