#pragma once

#include <cstdint>
#include <string>

#include "platform/Bundle.h"

namespace glossmill {

/// The texts of the statuses in the user's language. Statuses are compared by these texts.
struct StatusTexts {
  explicit StatusTexts(const Bundle& bundle);

  /// "%ld missing" filled with a count, which may be negative.
  std::string missingString(std::int64_t count) const;

  std::string incompleteString;
  std::string completeString;
  std::string automaticString;
  std::string ignoredString;

 private:
  std::string m_missingFormat;
};

}  // namespace glossmill
