#pragma once

#include <cstdint>
#include <string>

#include "model/Status.h"
#include "platform/Bundle.h"

namespace glossmill {

/// The texts of the statuses in the user's language, where they are shown.
struct StatusTexts {
  explicit StatusTexts(const Bundle& bundle);

  const std::string& textOf(Status status) const;
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
